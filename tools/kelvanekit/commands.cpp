#include "tools/kelvanekit/command.h"

namespace Vorn {

CommandRun DeclareCheck(CLI::App& app);

namespace {

constexpr Command kCommands[] = {
    {"check", "Report what is wrong with content files, each mistake at its line", DeclareCheck},
};

} // namespace

std::span<const Command> Commands() {
    return kCommands;
}

} // namespace Vorn
