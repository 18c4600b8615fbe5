#pragma once

#include "tools/kelvanekit/findingreport.h"
#include "tools/kelvanekit/sources.h"

#include <functional>

namespace Vorn {

// Finds the mistakes of one file. Called by several threads at a time.
using ContentChecker = std::function<Findings(ContentKind kind, std::string_view bytes)>;

// Checks all files and puts out what is found, in the order of the files. The exit status.
int CheckFiles(const SourceOptions& sourceOptions, unsigned jobs, const ContentChecker& checker, FindingReport& report,
               OutputStream& errors);

} // namespace Vorn
