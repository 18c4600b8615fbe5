#include "tools/kelvanekit/checkfiles.h"

#include "tools/kelvanekit/inputfile.h"
#include "tools/kelvanekit/orderedjobs.h"
#include "tools/kelvanekit/progressbar.h"

#include <new>
#include <stdexcept>

namespace Vorn {

namespace {

struct Checked {
    std::string problem;
    RenderedFindings findings;
};

Checked CheckFile(const SourceFile& file, InputFile& input, const ContentChecker& checker,
                  const FindingReport& report) {
    Checked checked;
    try {
        const std::string reason = file.isStandardInput ? input.ReadStandardInput() : input.Read(file.name);
        if (reason.empty()) {
            checked.findings = report.Render(file.name, input.Bytes(), checker(file.kind, input.Bytes()));
        } else {
            checked.problem = file.name + ": " + reason;
        }
    } catch (const std::bad_alloc&) {
        checked.problem = file.name + ": there is not enough memory for it";
    } catch (const std::length_error&) {
        checked.problem = file.name + ": it is too large";
    }
    return checked;
}

} // namespace

int CheckFiles(const SourceOptions& sourceOptions, unsigned jobs, const ContentChecker& checker, FindingReport& report,
               OutputStream& errors) {
    Sources sources = FindSources(sourceOptions);
    for (std::string& problem : sources.problems) {
        report.AddProblem(std::move(problem));
    }
    const std::vector<SourceFile>& files = sources.files;
    std::vector<InputFile> inputs(jobs);
    ProgressBar progress(errors, files.size());
    RunInOrder(
        files.size(), jobs,
        [&](std::size_t index, unsigned worker) { return CheckFile(files[index], inputs[worker], checker, report); },
        [&](std::size_t index, Checked checked) {
            if (checked.findings.Count() > 0 || !checked.problem.empty()) {
                progress.Clear();
            }
            if (!checked.problem.empty()) {
                report.AddProblem(std::move(checked.problem));
            }
            const bool isRead = report.Add(checked.findings);
            progress.Show(index + 1);
            return isRead;
        });
    progress.Clear();
    return report.Finish(files.size());
}

} // namespace Vorn
