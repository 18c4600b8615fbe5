#include "tools/kelvanekit/commandoptions.h"

#include "tools/kelvanekit/findings/findingcodes.h"
#include "tools/kelvanekit/findings/nearest.h"
#include "tools/kelvanekit/orderedjobs.h"

#include <CLI/CLI.hpp>

#include <algorithm>

namespace Vorn {

namespace {

constexpr int kMostJobs = 1024;

std::string Joined(const std::vector<std::string>& names) {
    std::string text;
    for (const std::string& name : names) {
        text += (text.empty() ? "" : "|") + name;
    }
    return text;
}

void AddStdinName(CLI::App& app, SourceOptions& options) {
    app.add_option("--stdin-name", options.stdinName, "The name of what comes on standard input; its ending is a type")
        ->type_name("NAME");
}

} // namespace

void AddChoice(CLI::App& app, const char* option, const char* description, const std::vector<std::string>& names,
               const std::function<void(const std::string&)>& choose) {
    const auto check = [names](const std::string& name) {
        const std::vector<std::string_view> allowed(names.begin(), names.end());
        return std::ranges::find(names, name) != names.end()
                   ? std::string()
                   : "'" + name + "' is none of " + Joined(names) + DidYouMean(name, allowed);
    };
    app.add_option_function<std::string>(option, choose, description)
        ->check(CLI::Validator(check, ""))
        ->type_name(Joined(names));
}

void AddTypeOption(CLI::App& app, std::optional<ContentKind>& type, const char* description) {
    std::vector<std::string> names;
    for (const ContentKindRow& row : ContentKinds()) {
        names.emplace_back(row.name);
    }
    AddChoice(app, "--type", description, names, [&](const std::string& name) { type = ContentKindNamed(name); });
}

void AddOneSourceOptions(CLI::App& app, SourceOptions& options) {
    app.add_option("FILE", options.names, "A content file; - is standard input")
        ->type_name("")
        ->expected(1)
        ->required();
    AddTypeOption(app, options.type, "The type of the file, whatever its ending");
    AddStdinName(app, options);
}

void AddSourceOptions(CLI::App& app, SourceOptions& options) {
    app.add_option("FILE|FOLDER", options.names, "Content files, and folders with such files; - is standard input")
        ->type_name("");
    AddTypeOption(app, options.type, "The type of all files, whatever their ending");
    MakeRepeatable(
        app.add_option("--exclude", options.excludes, "Leave out files and folders of this name; can be repeated")
            ->type_name("GLOB"));
    AddStdinName(app, options);
}

void AddNameOptions(CLI::App& app, NameLists& lists) {
    app.add_option("--root", lists.root, "Look up names of other contents among all below this folder")
        ->type_name("FOLDER");
    app.add_option("--sounds", lists.sounds, "Look up names of sounds in this file, one a line")->type_name("LIST");
    app.add_option("--strings", lists.strings, "Look up ids of strings in this file, one a line")->type_name("LIST");
}

void AddJobsOption(CLI::App& app, unsigned& jobs) {
    jobs = ProcessorCount();
    app.add_option("--jobs", jobs, "Files to work on at a time [processors]")
        ->check(CLI::Range(1, kMostJobs).description(""))
        ->type_name("N");
}

void AddReportOptions(CLI::App& app, ReportOptions& options) {
    options.form = &FindingForms().front();
    AddNamedOption(app, "--format", "The form of the findings [pretty]", FindingForms(), options.form);
    app.add_option("--max-findings", options.maxFindings, "Show so many findings and count the others")->type_name("N");
    app.add_flag("--warnings-as-errors", options.warningsAsErrors, "Report warnings as errors");
    const auto disable = [&](const std::vector<std::string>& names) {
        for (const std::string& name : names) {
            const FindingCode* code = FindCode(name);
            if (code == nullptr) {
                throw CLI::ValidationError("--disable", UnknownCode(name));
            }
            options.disabled.push_back(code);
        }
    };
    MakeRepeatable(app.add_option_function<std::vector<std::string>>("--disable", disable,
                                                                     "Leave out findings of this code; can be repeated")
                       ->type_name("CODE"));
    static constexpr std::pair<const char*, ColorMode> kModes[] = {
        {"auto", ColorMode::Auto}, {"always", ColorMode::Always}, {"never", ColorMode::Never}};
    AddChoice(app, "--color", "Colours in the output [auto: at a terminal]", {"auto", "always", "never"},
              [&](const std::string& name) {
                  options.colors = std::ranges::find(kModes, name, &std::pair<const char*, ColorMode>::first)->second;
              });
}

} // namespace Vorn
