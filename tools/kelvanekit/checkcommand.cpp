#include "tools/kelvanekit/checkfiles.h"
#include "tools/kelvanekit/command.h"
#include "tools/kelvanekit/commandoptions.h"
#include "tools/kelvanekit/findings/findingcodes.h"
#include "tools/kelvanekit/namelists.h"

#include <CLI/CLI.hpp>

namespace Vorn {

namespace {

constexpr std::string_view kAllCodes = "all";

struct CheckArguments {
    SourceOptions sources;
    ReportOptions report;
    unsigned jobs = 1;
    std::string explain;
    NameLists lists;
};

void PrintExplanation(const FindingCode& code, OutputStream& output) {
    output.Write(std::string(code.name) + " (" + std::string(NameOf(code.severity)) + ")\n\n");
    output.Write(code.explanation);
}

int Explain(const std::string& name, OutputStream& output) {
    if (name == kAllCodes) {
        for (const FindingCode& code : kFindingCodes) {
            PrintExplanation(code, output);
            output.Write("\n");
        }
        return kNothingFound;
    }
    const FindingCode* code = FindCode(name);
    if (code == nullptr) {
        throw CLI::ValidationError("--explain", UnknownCode(name));
    }
    PrintExplanation(*code, output);
    return kNothingFound;
}

int Check(const CheckArguments& arguments, OutputStream& output, OutputStream& errors) {
    FindingReport report(arguments.report, output, errors);
    return CheckFiles(arguments.sources, arguments.jobs, MakeChecker(arguments.lists, report), report, errors);
}

} // namespace

CommandRun DeclareCheck(CLI::App& app) {
    const auto arguments = std::make_shared<CheckArguments>();
    AddSourceOptions(app, arguments->sources);
    AddNameOptions(app, arguments->lists);
    AddReportOptions(app, arguments->report);
    AddJobsOption(app, arguments->jobs);
    app.add_option("--explain", arguments->explain, "Tell more about a code, or about all of them, and check nothing")
        ->type_name("CODE|all");
    return [arguments](OutputStream& output, OutputStream& errors) {
        if (!arguments->explain.empty()) {
            return Explain(arguments->explain, output);
        }
        if (arguments->sources.names.empty()) {
            throw CLI::RequiredError("FILE|FOLDER");
        }
        return Check(*arguments, output, errors);
    };
}

} // namespace Vorn
