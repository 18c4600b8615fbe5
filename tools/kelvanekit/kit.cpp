#include "tools/kelvanekit/kit.h"

#include "tools/kelvanekit/command.h"
#include "tools/kelvanekit/findingreport.h"
#include "tools/kelvanekit/findings/nearest.h"
#include "tools/kelvanekit/version.h"
#include "tools/kelvanekit/visibletext.h"

#include <CLI/CLI.hpp>

namespace Vorn {

namespace {

constexpr const char* kProgram = "kelvane-kit";
constexpr std::size_t kOptionColumns = 34;

// What is wrong with the command's name, if anything is.
std::string CommandProblem(const std::vector<std::string>& arguments) {
    if (arguments.empty()) {
        return "no command is given";
    }
    std::vector<std::string_view> names;
    for (const Command& command : Commands()) {
        names.emplace_back(command.name);
    }
    const std::string& name = arguments.front();
    if (name.starts_with('-') || std::ranges::find(names, name) != names.end()) {
        return {};
    }
    return "no command '" + name + "'" + DidYouMean(name, names);
}

int Complain(OutputStream& errors, std::string_view message, const std::string& command) {
    std::string text = std::string(kProgram) + ": ";
    AppendVisible(text, message);
    errors.Write(text + "\nTry '" + kProgram + command + " --help'.\n");
    return kNotDone;
}

int ParseAndRun(std::vector<std::string> arguments, OutputStream& output, OutputStream& errors) {
    CLI::App app("Checks and converts content files of the game.", kProgram);
    app.set_version_flag("--version", std::string(kProgram) + ' ' + kVersion, "Show the version");
    app.set_help_flag("-h,--help", "Show this help");
    // Names of files may begin with a slash on Windows too.
    app.allow_windows_style_options(false);
    app.get_formatter()->column_width(kOptionColumns);
    app.require_subcommand(1);
    CommandRun run;
    for (const Command& command : Commands()) {
        CLI::App* sub = app.add_subcommand(command.name, command.summary);
        const CommandRun declared = command.declare(*sub);
        sub->final_callback([&run, declared] { run = declared; });
    }
    if (const std::string problem = CommandProblem(arguments); !problem.empty()) {
        return Complain(errors, problem, "");
    }
    try {
        std::ranges::reverse(arguments);
        app.parse(std::move(arguments));
        return run(output, errors);
    } catch (const CLI::CallForHelp&) {
        output.Write(app.help());
        return kNothingFound;
    } catch (const CLI::CallForVersion& version) {
        output.Write(std::string(version.what()) + '\n');
        return kNothingFound;
    } catch (const CLI::ParseError& error) {
        const auto parsed = app.get_subcommands();
        return Complain(errors, error.what(), parsed.empty() ? "" : ' ' + parsed.front()->get_name());
    }
}

} // namespace

int RunKit(std::vector<std::string> arguments) {
    OutputStream output(OutputStream::Target::Output);
    OutputStream errors(OutputStream::Target::Error);
    int status = kNotDone;
    try {
        status = ParseAndRun(std::move(arguments), output, errors);
    } catch (const std::exception& exception) {
        errors.Write(std::string(kProgram) + ": " + exception.what() + '\n');
    }
    output.Flush();
    if (const std::string problem = output.TakeProblem(); !problem.empty()) {
        errors.Write(std::string(kProgram) + ": the output cannot be written: " + problem + '\n');
    }
    return output.HasFailed() ? kNotDone : status;
}

} // namespace Vorn
