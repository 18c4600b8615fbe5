#pragma once

#include "engine/archive/record.h"
#include "engine/window/brushref.h"
#include "gs/entity/support/entitydefname.h"
#include "gs/entity/support/researchenums.h"

namespace Vorn {

// What a star base is worth, and the upgrades that it can have, of which a file may hold 9.
struct IStarBaseDef : Record {
    BrushRef mainViewIcon;
    float experiencePointsForDestroying = 0.0f;
    FixedString<256> nameStringID;
    BrushRef picture;
    PlayerEntityCountType statCountType = PlayerEntityCountType::Invalid;
    EntityDefNameOf<EntityType::Ability> creationSourceAbility;
    std::uint32_t maxUpgradeLevelCount = 0;
    FixedVector<EntityDefNameOf<EntityType::StarBaseUpgrade>, 9> upgradeTypes;

    void Fields(FieldIo& io) override;
};

} // namespace Vorn
