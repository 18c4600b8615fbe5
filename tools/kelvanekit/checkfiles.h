#pragma once

#include "tools/kelvanekit/findingreport.h"
#include "tools/kelvanekit/inputfile.h"
#include "tools/kelvanekit/sources.h"

#include <functional>

namespace Vorn {

// Finds the mistakes of one file. Called by several threads at a time.
using ContentChecker = std::function<Findings(ContentKind kind, std::string_view bytes)>;

// What came of one file.
struct FileResult {
    // Why it could not be read or written.
    std::string problem;
    RenderedFindings findings;
    bool isDone = false;
};

// Reads a file and runs `work` on what was read.
FileResult WorkOn(const SourceFile& file, InputFile& input, const std::function<void(FileResult& result)>& work);

// Works on all files, several at a time, and puts out what is found in the order of the files. `take` gets each result
// in that order, and false from it ends the work early.
void WorkOnAll(const std::vector<SourceFile>& files, unsigned jobs, FindingReport& report, OutputStream& errors,
               const std::function<FileResult(std::size_t index, unsigned worker)>& work,
               const std::function<bool(std::size_t index, const FileResult& result)>& take);

// Checks all files and puts out what is found, in the order of the files. The exit status.
int CheckFiles(const SourceOptions& sourceOptions, unsigned jobs, const ContentChecker& checker, FindingReport& report,
               OutputStream& errors);

} // namespace Vorn
