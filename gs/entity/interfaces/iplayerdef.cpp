#include "gs/entity/interfaces/iplayerdef.h"

#include "gs/contentversions.h"

namespace Vorn {

void IPlayerDef::Fields(FieldIo& io) {
    NameFields(io);
    io.Bool(u"canColonize", canColonize);
    RaceTypeField(io);
    io.Bool(u"isSelectable", isSelectable);
    io.Uint(u"selectablePriorty", selectablePriority);
    io.String(u"randomCapitalShipNamePrefix", randomCapitalShipNamePrefix);
    io.String(u"randomStarBaseNamePrefix", randomStarBaseNamePrefix);
    io.Record(u"entities", entities);
    io.Block(data);
    io.Block(diplomacy);
    io.BoundedList(u"numResearchFields", researchFields, io.Strings(u"field"));
    io.String(u"playerThemeGroupName", playerThemeGroupName);
    io.String(u"playerPictureGroupName", playerPictureGroupName);
    io.SizedList(u"raceRelationsModCount", raceRelations, io.Records(u"raceRelationsModifier"));
    PlayerSystem::TransferFaction(io, u"defaultFactionNameID", defaultFaction);
}

void IPlayerDef::NameFields(FieldIo& io) {
    io.String(u"raceNameStringID", raceNameStringID, NameKind::StringId);
    if (io.Reading()) {
        race = io.Context().races->Resolve(raceNameStringID.View());
    }
}

void IPlayerDef::RaceTypeField(FieldIo& io) {
    if (io.Since(kRaceTypeVersion)) {
        io.Enum(u"playerRaceType", playerRaceType);
        return;
    }
    Bool isPsi;
    io.Bool(u"isPsi", isPsi);
    playerRaceType = isPsi ? PlayerRaceType::Psi : PlayerRaceType::Other;
}

} // namespace Vorn
