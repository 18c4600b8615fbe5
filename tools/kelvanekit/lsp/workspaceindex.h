#pragma once

#include "tools/kelvanekit/check/knownnames.h"
#include "tools/kelvanekit/sources.h"

#include <array>
#include <map>
#include <string>
#include <vector>

namespace Vorn {

// The contents below some folders, and the names that they define.
class WorkspaceIndex {
public:
    // Finds the contents again.
    void Walk(const std::vector<std::string>& folders);

    const std::vector<SourceFile>& Files() const { return files; }

    // The names of a kind with the files that define them, of several the first.
    using Definitions = std::map<std::u16string, const SourceFile*>;
    const Definitions& Of(NameKind kind) const { return definitions[static_cast<std::size_t>(kind)]; }
    // All of them, for checks. A single entity says nothing of the names of others, which are not looked up then.
    const KnownNames& Names() const { return names; }
    // The file that defines a name; null if there is none.
    const SourceFile* Find(NameKind kind, std::u16string_view name) const;

private:
    std::vector<SourceFile> files;
    std::array<Definitions, KnownNames::kKinds> definitions;
    KnownNames names;
};

} // namespace Vorn
