#include "gs/player/playersystem.h"

namespace Vorn {

std::int32_t NameList::Resolve(std::u16string_view name) {
    if (name.empty()) {
        return kNone;
    }
    for (std::int32_t i = 0; i < names.Size(); ++i) {
        if (names[i].View() == name) {
            return i;
        }
    }
    names.Append().Assign(name);
    return names.Size() - 1;
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

void PlayerSystem::TransferRace(FieldIo& io, Label label, std::int32_t& index) {
    CheckAssert(io.Reading() || races.IsIndex(index), "raceNameIndex > -1 && raceNameIndex < races.Size()");
    races.Transfer(io, label, index);
}

void PlayerSystem::TransferFaction(FieldIo& io, Label label, std::int32_t& index) {
    CheckAssert(io.Reading() || factions.IsIndex(index), "factionNameIndex > -1 && factionNameIndex < factions.Size()");
    factions.Transfer(io, label, index);
}

} // namespace Vorn
