#pragma once

#include "engine/archive/record.h"
#include "gs/entity/support/sharedenums.h"
#include "gs/player/playerdatadef.h"
#include "gs/player/playerdefentities.h"
#include "gs/player/playerdiplomacydef.h"
#include "gs/player/racerelationsmodifier.h"

namespace Vorn {

// A race that can be played. Its name is kept as text and added to the list of races; its faction is an index in the
// list of factions, and a check requires it to be there when it is written.
struct IPlayerDef : Record {
    FixedString<256> raceNameStringID;
    std::int32_t race = NameList::kNone;
    Bool canColonize;
    PlayerRaceType playerRaceType = PlayerRaceType::Invalid;
    Bool isSelectable;
    std::uint32_t selectablePriority = 0;
    FixedString<256> randomCapitalShipNamePrefix;
    FixedString<256> randomStarBaseNamePrefix;
    PlayerDefEntities entities;
    PlayerDataDef data;
    PlayerDiplomacyDef diplomacy;
    FixedVector<FixedString<256>, 8> researchFields;
    FixedString<256> playerThemeGroupName;
    FixedString<256> playerPictureGroupName;
    DynamicArray<RaceRelationsModifier> raceRelations;
    std::int32_t defaultFaction = NameList::kNone;

    void Fields(FieldIo& io) override;

private:
    void NameFields(FieldIo& io);
    void RaceTypeField(FieldIo& io);
};

} // namespace Vorn
