#include "tools/kelvanekit/check/knownnames.h"

#include "tools/kelvanekit/findings/nearest.h"

namespace Vorn {

void KnownNames::Add(NameKind kind, std::u16string name) {
    names[static_cast<std::size_t>(kind)].insert(std::move(name));
}

bool KnownNames::Has(NameKind kind, std::u16string_view name) const {
    const Names& known = names[static_cast<std::size_t>(kind)];
    // Folders in front of the name of a file play no part.
    const std::u16string_view last = name.substr(name.find_last_of(u"/\\") + 1);
    return known.empty() || known.contains(std::u16string(last));
}

std::u16string_view KnownNames::NearestTo(NameKind kind, std::u16string_view name) const {
    const Names& known = names[static_cast<std::size_t>(kind)];
    const std::vector<std::u16string_view> candidates(known.begin(), known.end());
    const std::size_t place = NearestOf(name, candidates);
    return place == kNoneNear ? std::u16string_view() : candidates[place];
}

std::string_view KnownNames::WhatIs(NameKind kind) {
    static constexpr std::string_view kNames[kKinds] = {"content", "entity definition", "particle effect", "brush",
                                                        "mesh",    "texture",           "sound",           "string id"};
    return kNames[static_cast<std::size_t>(kind)];
}

} // namespace Vorn
