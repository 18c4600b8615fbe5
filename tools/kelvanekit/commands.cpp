#include "tools/kelvanekit/command.h"

namespace Vorn {

CommandRun DeclareCheck(CLI::App& app);
CommandRun DeclareConvert(CLI::App& app);

namespace {

constexpr Command kCommands[] = {
    {"check", "Report what is wrong with content files, each mistake at its line", DeclareCheck},
    {"convert", "Convert content files, each as a whole or not at all", DeclareConvert},
};

} // namespace

std::span<const Command> Commands() {
    return kCommands;
}

} // namespace Vorn
