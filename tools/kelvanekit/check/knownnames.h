#pragma once

#include "engine/archive/archivable.h"

#include <array>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace Vorn {

// The names that contents may refer to. A kind of which nothing was added is not looked up.
class KnownNames {
public:
    static constexpr std::size_t kKinds = static_cast<std::size_t>(NameKind::StringId) + 1;
    static constexpr std::uint64_t kAnyClass = ~std::uint64_t{0};

    // `classes` are those of the thing, one bit for each row of their table, or all where they are not known.
    void Add(NameKind kind, std::u16string name, std::uint64_t classes = kAnyClass);

    // True for a name that was added, and for all of a kind that is not looked up. Capitals count.
    bool Has(NameKind kind, std::u16string_view name) const;

    // The classes of a name that was added.
    std::uint64_t ClassesOf(NameKind kind, std::u16string_view name) const;

    // The name that is most like it among those of some classes, or an empty one.
    std::u16string_view NearestTo(NameKind kind, std::u16string_view name, std::uint64_t classes) const;

    // What is called by names of a kind.
    static std::string_view WhatIs(NameKind kind);

private:
    using Names = std::unordered_map<std::u16string, std::uint64_t>;

    static std::u16string LastPart(std::u16string_view name);

    std::array<Names, kKinds> names;
};

} // namespace Vorn
