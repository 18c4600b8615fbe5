#include "tools/kelvanekit/command.h"
#include "tools/kelvanekit/commandoptions.h"
#include "tools/kelvanekit/convertfiles.h"

#include <CLI/CLI.hpp>

namespace Vorn {

namespace {

struct ConvertArguments {
    ConvertOptions options;
    ReportOptions report;
    NameLists lists;
};

void AddOutputOptions(CLI::App& app, ConvertOptions& options) {
    const auto choose = [&](const std::string& name) {
        options.form = name == "txt" ? FileArchiveType::Text : FileArchiveType::Binary;
    };
    app.add_option_function<std::string>("--to", choose, "The form to convert to")
        ->check(CLI::IsMember({"bin", "txt"}))
        ->type_name("bin|txt")
        ->required();
    app.add_option("--output", options.output, "The file to write, or a folder, which gets all files by their names")
        ->type_name("FILE|FOLDER")
        ->required();
    app.add_flag("--lenient", options.isLenient, "Convert files with errors too, as the converter does");
    app.add_flag("--touch", options.destination.touch, "Give the present time to files that do not change");
    app.add_flag("--sync", options.destination.sync, "Wait until all is on the disk");
}

} // namespace

CommandRun DeclareConvert(CLI::App& app) {
    const auto arguments = std::make_shared<ConvertArguments>();
    AddSourceOptions(app, arguments->options.sources);
    AddOutputOptions(app, arguments->options);
    AddNameOptions(app, arguments->lists);
    AddReportOptions(app, arguments->report);
    AddJobsOption(app, arguments->options.jobs);
    return [arguments](OutputStream&, OutputStream& errors) {
        if (arguments->options.sources.names.empty()) {
            throw CLI::RequiredError("FILE|FOLDER");
        }
        FindingReport report(arguments->report, errors, errors);
        return ConvertFiles(arguments->options, MakeChecker(arguments->lists, report), report, errors);
    };
}

} // namespace Vorn
