#include "gs/player/racerelationsmodifier.h"

namespace Vorn {

void FactionRelationsModifier::Fields(FieldIo& io) {
    PlayerSystem::TransferFaction(io, u"factionNameID", faction);
    PlayerSystem::TransferFaction(io, u"otherFactionNameID", otherFaction);
    io.Float(u"modifierMin", modifierMin);
    io.Float(u"modifierMax", modifierMax);
}

void RaceRelationsModifier::Fields(FieldIo& io) {
    PlayerSystem::TransferRace(io, u"raceNameID", race);
    io.Float(u"modifierMin", modifierMin);
    io.Float(u"modifierMax", modifierMax);
    io.SizedList(u"factionRelationsModCount", factionRelations, io.Records(u"factionRelationsModifier"));
}

} // namespace Vorn
