#pragma once

#include "tools/kelvanekit/check/knownnames.h"
#include "tools/kelvanekit/findingreport.h"

namespace Vorn {

// Where the names of other contents, of sounds and of strings are looked up; each is empty for nowhere.
struct NameLists {
    // A folder with contents.
    std::string root;
    // Files with one name a line.
    std::string sounds;
    std::string strings;

    bool IsEmpty() const { return root.empty() && sounds.empty() && strings.empty(); }
};

// All names of the lists. What cannot be read becomes a problem of the report.
KnownNames LoadNames(const NameLists& lists, FindingReport& report);

} // namespace Vorn
