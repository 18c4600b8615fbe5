#pragma once

#include "tools/kelvanekit/check/knownnames.h"
#include "tools/kelvanekit/checkfiles.h"

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

// What a file of a type defines.
NameKind NameKindOf(ContentKind kind);

// Adds the names that contents define, and passes each to `found`, if there is one.
using NameFound = std::function<void(NameKind kind, const std::u16string& name, const SourceFile& file)>;
void AddContents(const std::vector<SourceFile>& files, KnownNames& names, const NameFound& found = {});

// Checks contents with the names of the lists. What cannot be read of these becomes a problem of the report.
ContentChecker MakeChecker(const NameLists& lists, FindingReport& report);

} // namespace Vorn
