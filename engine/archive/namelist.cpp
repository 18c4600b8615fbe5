#include "engine/archive/namelist.h"

#include <algorithm>
#include <functional>

namespace Vorn {

std::int32_t NameList::Resolve(std::u16string_view name) {
    if (name.empty()) {
        return kNone;
    }
    MakePlaces();
    std::int32_t& place = PlaceOf(name);
    if (place == kNone) {
        place = names.Size();
        names.Append().Assign(name);
    }
    return place;
}

// Keeps at least half of the places free.
void NameList::MakePlaces() {
    constexpr std::size_t kFirstPlaces = 64;
    const auto needed = 2 * (static_cast<std::size_t>(names.Size()) + 1);
    if (places.size() >= needed) {
        return;
    }
    places.assign(std::max(2 * places.size(), kFirstPlaces), kNone);
    for (std::int32_t i = 0; i < names.Size(); ++i) {
        std::int32_t& place = PlaceOf(names[i].View());
        place = place == kNone ? i : place;
    }
}

// The place that holds the name's index, or the free one where it belongs.
std::int32_t& NameList::PlaceOf(std::u16string_view name) {
    const std::size_t mask = places.size() - 1;
    std::size_t i = std::hash<std::u16string_view>()(name) & mask;
    while (places[i] != kNone && names[places[i]].View() != name) {
        i = (i + 1) & mask;
    }
    return places[i];
}

std::u16string_view NameList::GetText(std::int32_t index) const {
    return IsIndex(index) ? names[index].View() : std::u16string_view();
}

void NameList::Transfer(FieldIo& io, Label label, std::int32_t& index) {
    Name name;
    if (io.Writing()) {
        name.Assign(GetText(index));
    }
    io.String(label, name);
    if (io.Reading()) {
        index = Resolve(name.View());
    }
}

} // namespace Vorn
