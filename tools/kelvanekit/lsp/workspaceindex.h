#pragma once

#include "tools/kelvanekit/check/knownnames.h"
#include "tools/kelvanekit/sources.h"

#include <array>
#include <map>
#include <string>
#include <vector>

namespace Vorn {

// Where something is defined that contents refer to.
struct NamePlace {
    std::string file;
    // From 0; of a file as a whole, the first.
    std::int32_t line = 0;
};

// The contents below some folders, and the names that they define.
class WorkspaceIndex {
public:
    // Finds the contents again.
    void Walk(const std::vector<std::string>& folders);

    const std::vector<SourceFile>& Files() const { return files; }

    // The names of a kind with their places. A name that is defined twice has its first place.
    using Places = std::map<std::u16string, NamePlace>;
    const Places& Of(NameKind kind) const { return places[static_cast<std::size_t>(kind)]; }
    // Where a name is defined, as a check looks it up; null if nowhere.
    const NamePlace* Find(NameKind kind, std::u16string_view name) const;

private:
    std::vector<SourceFile> files;
    std::array<Places, KnownNames::kKinds> places;
};

} // namespace Vorn
