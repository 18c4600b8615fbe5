#pragma once

#include "gs/entity/interfaces/starbaseupgradestagedef.h"

namespace Vorn {

// An upgrade of a star base in at most 10 stages. A check requires at least one.
struct IStarBaseUpgradeDef : Record {
    FixedVector<StarBaseUpgradeStageDef, 10> stages;
    float xpModifier = 0.0f;

    void Fields(FieldIo& io) override;
};

} // namespace Vorn
