#include "tools/kelvanekit/convertfiles.h"

#include "tools/kelvane/contentconverter.h"
#include "tools/kelvanekit/check/contentcheck.h"
#include "tools/kelvanekit/convertplan.h"
#include "tools/kelvanekit/findings/findingcodes.h"
#include "tools/kelvanekit/interruption.h"

#include <algorithm>
#include <deque>

namespace Vorn {

namespace {

// A finding about a whole file.
Finding FileFinding(const FindingCode* code, std::string_view bytes, std::string message) {
    Finding finding;
    finding.code = code;
    if (IsBinaryContent(bytes)) {
        finding.place.offset = 0;
    } else {
        finding.place.line = 1;
    }
    finding.message = std::move(message);
    return finding;
}

// What one thread works with.
class FileConverter {
public:
    FileConverter(const ConvertOptions& _options, const ContentChecker& _checker, const FindingReport& _report)
        : options(_options), checker(_checker), report(_report), writer(options.destination) {}

    FileResult Convert(const SourceFile& file, const std::string& destination) {
        return WorkOn(file, input, [&](FileResult& converted) { ConvertInput(file, destination, converted); });
    }

    std::string Finish() { return writer.Finish(); }

private:
    void ConvertInput(const SourceFile& file, const std::string& destination, FileResult& converted) {
        Findings findings = checker(file.kind, input.Bytes());
        converted.findings = report.Render(file.name, input.Bytes(), findings);
        if (converted.findings.HasErrors() && !options.isLenient) {
            return;
        }
        const ConversionResult result = converter.Convert(file.kind, file.name, input.Bytes(), options.form);
        if (result != ConversionResult::Converted) {
            AddRefusal(result, findings);
            converted.findings = report.Render(file.name, input.Bytes(), findings);
            return;
        }
        const std::string reason = writer.Write(destination, converter.Bytes());
        if (reason.empty()) {
            converted.isDone = true;
        } else {
            converted.problem = destination + ": " + reason;
        }
    }

    // Says why nothing is written, unless a finding does so already.
    void AddRefusal(ConversionResult result, Findings& findings) const {
        const bool hasEnd = std::ranges::any_of(
            findings, [](const Finding& finding) { return finding.code == Code("ends-abnormally"); });
        if (result == ConversionResult::Ended && !hasEnd) {
            findings.push_back(FileFinding(Code("ends-abnormally"), input.Bytes(), "a conversion ends abnormally"));
        } else if (result == ConversionResult::Refused) {
            findings.push_back(FileFinding(Code("not-content"), input.Bytes(),
                                           "a conversion writes nothing: the file is no definition of a class, or its "
                                           "name has 80 or more characters in front of the ending"));
        }
    }

    const ConvertOptions& options;
    const ContentChecker& checker;
    const FindingReport& report;
    InputFile input;
    ContentConverter converter;
    DestinationWriter writer;
};

std::string ListOfFailed(const std::vector<std::string>& names) {
    std::string text = names.empty() ? "" : "not converted:\n";
    for (const std::string& name : names) {
        text += "  " + name + '\n';
    }
    return text;
}

// Converts the files of a plan, and returns the names of those that were not converted.
std::vector<std::string> RunPlan(const std::vector<SourceFile>& files, const ConvertPlan& plan,
                                 const ConvertOptions& options, const ContentChecker& checker, FindingReport& report,
                                 OutputStream& errors) {
    std::deque<FileConverter> converters;
    for (unsigned worker = 0; worker < options.jobs; ++worker) {
        converters.emplace_back(options, checker, report);
    }
    std::vector<std::string> failed;
    const auto convert = [&](std::size_t index, unsigned worker) {
        return converters[worker].Convert(files[index], plan.destinations[index]);
    };
    WorkOnAll(files, options.jobs, report, errors, convert, [&](std::size_t index, const FileResult& converted) {
        if (!converted.isDone) {
            failed.push_back(files[index].name);
        }
        return !Interruption::IsWanted();
    });
    for (FileConverter& converter : converters) {
        if (std::string problem = converter.Finish(); !problem.empty()) {
            report.AddProblem(std::move(problem));
        }
    }
    return failed;
}

} // namespace

int ConvertFiles(const ConvertOptions& options, const ContentChecker& checker, FindingReport& report,
                 OutputStream& errors) {
    Sources sources = FindSources(options.sources);
    ConvertPlan plan = PlanConversions(sources.files, options.sources.names, options.output);
    for (std::vector<std::string>* problems : {&sources.problems, &plan.problems}) {
        for (std::string& problem : *problems) {
            report.AddProblem(std::move(problem));
        }
    }
    if (!plan.problems.empty()) {
        return report.Finish(0);
    }
    const Interruption interruption;
    const std::vector<std::string> failed = RunPlan(sources.files, plan, options, checker, report, errors);
    const int status = report.Finish(sources.files.size());
    errors.Write(ListOfFailed(failed));
    if (status == kNotDone) {
        return kNotDone;
    }
    return failed.empty() ? kNothingFound : kFindings;
}

} // namespace Vorn
