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

// Calls `found` with each name that contents define: those of brushes, and of other files their own without its ending.
using NameFound = std::function<void(const std::u16string& name, const SourceFile& file)>;
void FindNames(const std::vector<SourceFile>& files, const NameFound& found);

// Adds such a name as references may spell it: that of a file with or without its ending.
void AddName(const std::u16string& name, const SourceFile& file, KnownNames& names);

// Checks contents with the names of the lists. What cannot be read of these becomes a problem of the report.
ContentChecker MakeChecker(const NameLists& lists, FindingReport& report);

} // namespace Vorn
