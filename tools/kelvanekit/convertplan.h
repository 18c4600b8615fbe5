#pragma once

#include "tools/kelvanekit/sources.h"

#include <string>
#include <vector>

namespace Vorn {

// Where each source goes.
struct ConvertPlan {
    // One for each source.
    std::vector<std::string> destinations;
    // A sentence for each thing that forbids to convert at all: two sources for one destination, or a destination that
    // is another source.
    std::vector<std::string> problems;
};

// The output is a folder if it is one already or ends in a slash, or if there is more than one name or a folder among
// `names`, which are what the sources were found by. A folder gets the sources with their sub-folders.
ConvertPlan PlanConversions(const std::vector<SourceFile>& sources, const std::vector<std::string>& names,
                            const std::string& output);

} // namespace Vorn
