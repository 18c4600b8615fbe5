#include "tools/kelvanekit/command.h"

namespace Vorn {

CommandRun DeclareCheck(CLI::App& app);
CommandRun DeclareConvert(CLI::App& app);
CommandRun DeclareDiff(CLI::App& app);
CommandRun DeclareDump(CLI::App& app);

namespace {

constexpr Command kCommands[] = {
    {"check", "Report what is wrong with content files, each mistake at its line", DeclareCheck},
    {"convert", "Convert content files, each as a whole or not at all", DeclareConvert},
    {"dump", "Show a content file field by field, with the bytes of a binary one", DeclareDump},
    {"diff", "Show the differences of two content files by their keys", DeclareDiff},
};

} // namespace

std::span<const Command> Commands() {
    return kCommands;
}

} // namespace Vorn
