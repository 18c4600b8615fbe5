#include "tools/kelvanekit/command.h"

namespace Vorn {

CommandRun DeclareCheck(CLI::App& app);
CommandRun DeclareConvert(CLI::App& app);
CommandRun DeclareDiff(CLI::App& app);
CommandRun DeclareDump(CLI::App& app);
CommandRun DeclareKeys(CLI::App& app);
CommandRun DeclareNew(CLI::App& app);
CommandRun DeclareLsp(CLI::App& app);

namespace {

constexpr Command kCommands[] = {
    {"check", "Report what is wrong with content files, each mistake at its line", DeclareCheck},
    {"convert", "Convert content files, each as a whole or not at all", DeclareConvert},
    {"dump", "Show a content file field by field, with the bytes of a binary one", DeclareDump},
    {"diff", "Show the differences of two content files by their keys", DeclareDiff},
    {"keys", "Show the reference of all keys of content files", DeclareKeys},
    {"new", "Print a new content file with the default of each key", DeclareNew},
    {"lsp", "Serve an editor: the Language Server Protocol over standard input and output", DeclareLsp},
};

} // namespace

std::span<const Command> Commands() {
    return kCommands;
}

} // namespace Vorn
