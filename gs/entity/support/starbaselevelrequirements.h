#pragma once

#include "engine/archive/record.h"
#include "gs/entity/support/upgradeenums.h"

namespace Vorn {

// The upgrade levels that a star base must have reached, at most 3.
struct StarBaseLevelRequirements : Record {
    struct StarBaseLevelRequirement : Record {
        StarBaseUpgradePropertyType upgradePropertyType = StarBaseUpgradePropertyType::Invalid;
        std::uint32_t upgradeLevel = 0;

        void Fields(FieldIo& io) override;
    };

    FixedVector<StarBaseLevelRequirement, 3> levelRequirements;

    void Fields(FieldIo& io) override;
};

} // namespace Vorn
