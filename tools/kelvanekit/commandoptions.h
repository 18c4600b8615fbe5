#pragma once

#include "tools/kelvanekit/findingreport.h"
#include "tools/kelvanekit/sources.h"

namespace CLI {
class App;
}

namespace Vorn {

// The options that commands share. What they declare is filled in when the command line is parsed; `options` must live
// until then.

// Files and folders, their types, and what is left out.
void AddSourceOptions(CLI::App& app, SourceOptions& options);

// The number of files that are worked on at a time, by default as many as there are processors.
void AddJobsOption(CLI::App& app, unsigned& jobs);

// The form of the findings, and which of them are shown.
void AddReportOptions(CLI::App& app, ReportOptions& options);

} // namespace Vorn
