#pragma once

#include "engine/archive/record.h"
#include "gs/player/playersystem.h"

namespace Vorn {

// The relation between two factions. Both are indexes in the list of factions; a check wants each in it when it is
// written.
struct FactionRelationsModifier : Record {
    std::int32_t faction = NameList::kNone;
    std::int32_t otherFaction = NameList::kNone;
    float modifierMin = 0.0f;
    float modifierMax = 0.0f;

    void Fields(FieldIo& io) override;
};

// The relation to a race, an index in the list of races, and what its factions change.
struct RaceRelationsModifier : Record {
    std::int32_t race = NameList::kNone;
    float modifierMin = 0.0f;
    float modifierMax = 0.0f;
    DynamicArray<FactionRelationsModifier> factionRelations;

    void Fields(FieldIo& io) override;
};

} // namespace Vorn
