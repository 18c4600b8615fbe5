#pragma once

#include "engine/archive/record.h"
#include "gs/player/playersystem.h"

namespace Vorn {

// The relation between two factions. Both are indexes in the list of factions; a check requires each to be in it when
// it is written.
struct FactionRelationsModifier : Record {
    std::int32_t faction = NameList::kNone;
    std::int32_t otherFaction = NameList::kNone;
    float modifierMin = 0.0f;
    float modifierMax = 0.0f;

    void Fields(FieldIo& io) override;
};

// The relation to a race, which is an index in the list of races, and how its factions change it.
struct RaceRelationsModifier : Record {
    std::int32_t race = NameList::kNone;
    float modifierMin = 0.0f;
    float modifierMax = 0.0f;
    DynamicArray<FactionRelationsModifier> factionRelations;

    void Fields(FieldIo& io) override;
};

} // namespace Vorn
