#include "gs/player/racerelationsmodifier.h"

namespace Vorn {

void FactionRelationsModifier::Fields(FieldIo& io) {
    io.Context().players->TransferFaction(io, u"factionNameID", faction);
    io.Context().players->TransferFaction(io, u"otherFactionNameID", otherFaction);
    io.Float(u"modifierMin", modifierMin);
    io.Float(u"modifierMax", modifierMax);
}

void RaceRelationsModifier::Fields(FieldIo& io) {
    io.Context().players->TransferRace(io, u"raceNameID", race);
    io.Float(u"modifierMin", modifierMin);
    io.Float(u"modifierMax", modifierMax);
    io.SizedList(u"factionRelationsModCount", factionRelations, io.Records(u"factionRelationsModifier"));
}

} // namespace Vorn
