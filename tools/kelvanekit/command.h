#pragma once

#include "tools/kelvanekit/outputstream.h"

#include <functional>
#include <span>

namespace CLI {
class App;
}

namespace Vorn {

// Runs a command whose options are parsed, and returns the exit status.
using CommandRun = std::function<int(OutputStream& output, OutputStream& errors)>;

// A command: a file that declares its options, and a row in commands.cpp.
struct Command {
    const char* name;
    const char* summary;
    // Declares the options and returns what runs with them.
    CommandRun (*declare)(CLI::App& app);
};

// All commands, in the order of the help.
std::span<const Command> Commands();

} // namespace Vorn
