#pragma once

#include "engine/archive/record.h"

namespace Vorn {

// How the shields of a player's ships show that they absorb damage.
struct PlayerShieldData : Record {
    float shieldAbsorbGrowthPerDamage = 0.0f;
    float shieldAbsorbDecayRate = 0.0f;
    float shieldAbsorbBaseMin = 0.0f;
    Color shieldColor;

    void Fields(FieldIo& io) override;
};

} // namespace Vorn
