#pragma once

#include "engine/archive/filearchive.h"
#include "tools/kelvanekit/checkfiles.h"
#include "tools/kelvanekit/destination.h"

namespace Vorn {

struct ConvertOptions {
    SourceOptions sources;
    FileArchiveType form = FileArchiveType::Binary;
    // A file or a folder.
    std::string output;
    // Files with errors are converted all the same.
    bool isLenient = false;
    DestinationOptions destination;
    unsigned jobs = 1;
};

// Checks and converts all files. What is found is put out in the order of the files, then the files that were not
// converted are listed. The exit status: findings stand for files that were not converted.
int ConvertFiles(const ConvertOptions& options, const ContentChecker& checker, FindingReport& report,
                 OutputStream& errors);

} // namespace Vorn
