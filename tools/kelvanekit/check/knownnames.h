#pragma once

#include "engine/archive/archivable.h"

#include <array>
#include <string>
#include <string_view>
#include <unordered_set>
#include <vector>

namespace Vorn {

// The names that contents may refer to. A kind of which nothing was added is not looked up.
class KnownNames {
public:
    void Add(NameKind kind, std::u16string name);

    // True for a name that was added, and for all of a kind that is not looked up. Capitals count.
    bool Has(NameKind kind, std::u16string_view name) const;

    // The name that is most like it, or an empty one.
    std::u16string_view NearestTo(NameKind kind, std::u16string_view name) const;

    // What is called by names of a kind.
    static std::string_view WhatIs(NameKind kind);

private:
    static constexpr std::size_t kKinds = static_cast<std::size_t>(NameKind::StringId) + 1;

    using Names = std::unordered_set<std::u16string>;

    std::array<Names, kKinds> names;
};

} // namespace Vorn
