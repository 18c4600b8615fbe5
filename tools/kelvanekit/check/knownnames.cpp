#include "tools/kelvanekit/check/knownnames.h"

#include "tools/kelvanekit/findings/nearest.h"

namespace Vorn {

void KnownNames::Add(NameKind kind, std::u16string name, std::uint64_t classes) {
    names[static_cast<std::size_t>(kind)][std::move(name)] |= classes;
}

// Folders in front of the name of a file play no part.
std::u16string KnownNames::LastPart(std::u16string_view name) {
    return std::u16string(name.substr(name.find_last_of(u"/\\") + 1));
}

bool KnownNames::Has(NameKind kind, std::u16string_view name) const {
    const Names& known = names[static_cast<std::size_t>(kind)];
    return known.empty() || known.contains(LastPart(name));
}

std::uint64_t KnownNames::ClassesOf(NameKind kind, std::u16string_view name) const {
    const Names& known = names[static_cast<std::size_t>(kind)];
    const auto found = known.find(LastPart(name));
    return found == known.end() ? kAnyClass : found->second;
}

std::u16string_view KnownNames::NearestTo(NameKind kind, std::u16string_view name, std::uint64_t classes) const {
    std::vector<std::u16string_view> candidates;
    for (const auto& [candidate, ofClasses] : names[static_cast<std::size_t>(kind)]) {
        if ((ofClasses & classes) != 0) {
            candidates.push_back(candidate);
        }
    }
    const std::size_t place = NearestOf(name, candidates);
    return place == kNoneNear ? std::u16string_view() : candidates[place];
}

std::string_view KnownNames::WhatIs(NameKind kind) {
    static constexpr std::string_view kNames[kKinds] = {"content", "entity definition", "particle effect", "brush",
                                                        "mesh",    "texture",           "sound",           "string id"};
    return kNames[static_cast<std::size_t>(kind)];
}

} // namespace Vorn
