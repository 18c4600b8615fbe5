#include "tools/kelvanekit/checkfiles.h"

#include "tools/kelvanekit/orderedjobs.h"
#include "tools/kelvanekit/progressbar.h"

#include <functional>
#include <new>
#include <stdexcept>

namespace Vorn {

FileResult WorkOn(const SourceFile& file, InputFile& input, const std::function<void(FileResult& result)>& work) {
    FileResult result;
    try {
        const std::string reason = file.isStandardInput ? input.ReadStandardInput() : input.Read(file.name);
        if (reason.empty()) {
            work(result);
        } else {
            result.problem = file.name + ": " + reason;
        }
    } catch (const std::bad_alloc&) {
        result.problem = file.name + ": there is not enough memory for it";
    } catch (const std::length_error&) {
        result.problem = file.name + ": it is too large";
    }
    return result;
}

void WorkOnAll(const std::vector<SourceFile>& files, unsigned jobs, FindingReport& report, OutputStream& errors,
               const std::function<FileResult(std::size_t index, unsigned worker)>& work,
               const std::function<bool(std::size_t index, const FileResult& result)>& take) {
    ProgressBar progress(errors, files.size());
    RunInOrder(files.size(), jobs, std::cref(work), [&](std::size_t index, FileResult result) {
        if (result.findings.Count() > 0 || !result.problem.empty()) {
            progress.Clear();
        }
        if (!result.problem.empty()) {
            report.AddProblem(std::move(result.problem));
        }
        const bool isWanted = take(index, result);
        const bool isRead = report.Add(result.findings);
        progress.Show(index + 1);
        return isRead && isWanted;
    });
    progress.Clear();
}

int CheckFiles(const SourceOptions& sourceOptions, unsigned jobs, const ContentChecker& checker, FindingReport& report,
               OutputStream& errors) {
    Sources sources = FindSources(sourceOptions);
    for (std::string& problem : sources.problems) {
        report.AddProblem(std::move(problem));
    }
    const std::vector<SourceFile>& files = sources.files;
    std::vector<InputFile> inputs(jobs);
    const auto check = [&](std::size_t index, unsigned worker) {
        InputFile& input = inputs[worker];
        return WorkOn(files[index], input, [&](FileResult& result) {
            result.findings =
                report.Render(files[index].name, input.Bytes(), checker(files[index].kind, input.Bytes()));
        });
    };
    WorkOnAll(files, jobs, report, errors, check, [](std::size_t, const FileResult&) { return true; });
    return report.Finish(files.size());
}

} // namespace Vorn
