#include "tools/kelvanekit/convertfiles.h"

#include "tools/kelvane/contentconverter.h"
#include "tools/kelvanekit/convertplan.h"
#include "tools/kelvanekit/findings/findingcodes.h"
#include "tools/kelvanekit/inputfile.h"
#include "tools/kelvanekit/interruption.h"
#include "tools/kelvanekit/orderedjobs.h"
#include "tools/kelvanekit/progressbar.h"

#include <deque>
#include <new>
#include <stdexcept>

namespace Vorn {

namespace {

struct Converted {
    // Why the file could not be read or written.
    std::string problem;
    RenderedFindings findings;
    bool isDone = false;
};

// A finding about a whole file.
Finding FileFinding(const FindingCode* code, std::string_view bytes, std::string message) {
    Finding finding;
    finding.code = code;
    if (bytes.starts_with("BIN")) {
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

    Converted Convert(const SourceFile& file, const std::string& destination) {
        Converted converted;
        try {
            const std::string reason = file.isStandardInput ? input.ReadStandardInput() : input.Read(file.name);
            if (reason.empty()) {
                ConvertInput(file, destination, converted);
            } else {
                converted.problem = file.name + ": " + reason;
            }
        } catch (const std::bad_alloc&) {
            converted.problem = file.name + ": there is not enough memory for it";
        } catch (const std::length_error&) {
            converted.problem = file.name + ": it is too large";
        }
        return converted;
    }

    std::string Finish() { return writer.Finish(); }

private:
    void ConvertInput(const SourceFile& file, const std::string& destination, Converted& converted) {
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
    ProgressBar progress(errors, files.size());
    RunInOrder(
        files.size(), options.jobs,
        [&](std::size_t index, unsigned worker) {
            return converters[worker].Convert(files[index], plan.destinations[index]);
        },
        [&](std::size_t index, Converted converted) {
            if (converted.findings.Count() > 0 || !converted.problem.empty()) {
                progress.Clear();
            }
            if (!converted.problem.empty()) {
                report.AddProblem(std::move(converted.problem));
            }
            if (!converted.isDone) {
                failed.push_back(files[index].name);
            }
            const bool isRead = report.Add(converted.findings);
            progress.Show(index + 1);
            return isRead && !Interruption::IsWanted();
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
