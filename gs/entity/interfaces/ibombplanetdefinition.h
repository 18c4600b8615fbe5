#pragma once

#include "engine/archive/record.h"
#include "gs/entity/support/bufflevelfloattable.h"
#include "gs/entity/support/weaponeffectsdef.h"

namespace Vorn {

// How a ship bombs planets; of one that cannot only canBomb is stored. The angle variance is the same number here and
// in files.
struct IBombPlanetDefinition : Record {
    Bool canBomb;
    Bool hasBombingLevels;
    BuffLevelFloatTable baseDamage;
    BuffLevelFloatTable basePopulationKilled;
    float bombingFreqTime = 0.0f;
    float baseRange = 0.0f;
    float bombTransitTime = 0.0f;
    std::uint32_t bombEffectCount = 0;
    float bombEffectAngleVariance = 0.0f;
    WeaponEffectsDef bombEffectsDef;

    void Fields(FieldIo& io) override;
};

} // namespace Vorn
