#include "gs/player/racerelationsmodifier.h"

namespace Vorn {

void FactionRelationsModifier::Fields(FieldIo& io) {
    GetPlayerSystem().TransferFaction(io, u"factionNameID", faction);
    GetPlayerSystem().TransferFaction(io, u"otherFactionNameID", otherFaction);
    io.Float(u"modifierMin", modifierMin);
    io.Float(u"modifierMax", modifierMax);
}

void RaceRelationsModifier::Fields(FieldIo& io) {
    GetPlayerSystem().TransferRace(io, u"raceNameID", race);
    io.Float(u"modifierMin", modifierMin);
    io.Float(u"modifierMax", modifierMax);
    io.SizedList(u"factionRelationsModCount", factionRelations,
                 [&](FactionRelationsModifier& modifier) { io.Record(u"factionRelationsModifier", modifier); });
}

} // namespace Vorn
