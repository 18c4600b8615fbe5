#pragma once

#include "engine/archive/fieldio.h"

#include <vector>

namespace Vorn {

// Names that records keep as indexes. The list only grows, so that indexes stay valid.
class NameList {
public:
    static constexpr std::int32_t kNone = -1;

    // The index of exactly this name, which is appended if it is new; kNone for an empty one.
    std::int32_t Resolve(std::u16string_view name);

    bool IsIndex(std::int32_t index) const { return index >= 0 && index < names.Size(); }

    // Empty for an index outside the list.
    std::u16string_view GetText(std::int32_t index) const;

    // A field that is an index in memory and the name in every file. A missing or empty name gives kNone; an index
    // outside the list is written as an empty name, and checking it is up to the record.
    void Transfer(FieldIo& io, Label label, std::int32_t& index);

private:
    using Name = FixedString<256>;

    void MakePlaces();
    std::int32_t& PlaceOf(std::u16string_view name);

    DynamicVector<Name> names;
    // A hash table of indexes; its size is a power of two.
    std::vector<std::int32_t> places;
};

} // namespace Vorn
