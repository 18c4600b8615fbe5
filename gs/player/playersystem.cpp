#include "gs/player/playersystem.h"

namespace Vorn {

void PlayerSystem::TransferRace(FieldIo& io, Label label, std::int32_t& index) {
    NameList& races = *io.Context().races;
    CheckAssert(io.Reading() || races.IsIndex(index), "raceNameIndex > -1 && raceNameIndex < races.Size()");
    races.Transfer(io, label, index);
}

void PlayerSystem::TransferFaction(FieldIo& io, Label label, std::int32_t& index) {
    NameList& factions = *io.Context().factions;
    CheckAssert(io.Reading() || factions.IsIndex(index), "factionNameIndex > -1 && factionNameIndex < factions.Size()");
    factions.Transfer(io, label, index);
}

} // namespace Vorn
