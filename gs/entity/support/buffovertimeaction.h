#pragma once

#include "engine/archive/record.h"
#include "engine/datastructures/ondemand.h"
#include "gs/entity/support/bufflevelfloattable.h"
#include "gs/entity/support/sharedenums.h"
#include "gs/entity/support/targetfilter.h"

namespace Vorn {

// The numbers are the rows of the table in buffovertimeaction.cpp.
enum class BuffOverTimeActionType : std::int32_t { Invalid = -1 };

// An effect of a buff as long as it lasts. The type selects the fields that follow it; without a type there are none,
// and the check "false" fires.
struct BuffOverTimeAction : Record {
    // The values of all types, named after their fields.
    struct Values {
        BuffLevelFloatTable damageRate;
        DamageAffectType damageAffectType = DamageAffectType::Invalid;
        DamageType damageType = DamageType::Invalid;
        Bool isDamageShared;
        BuffLevelFloatTable populationKillRate;
        BuffLevelFloatTable buildRate;
        BuffLevelFloatTable moduleCostFraction;
        BuffLevelFloatTable drainAntiMatterRate;
        BuffLevelFloatTable earnRate;
        BuffLevelFloatTable antiMatterRestoreRate;
        BuffLevelFloatTable shieldRestoreRate;
        BuffLevelFloatTable hullRestoreRate;
        TargetFilter targetFilter;
        BuffLevelFloatTable range;
        BuffLevelFloatTable maxNumTargets;
        BuffLevelFloatTable damagePerImpact;
        float pullForceMagnitude = 0.0f;
        BuffLevelFloatTable stolenPlanetProductionPerc;
        BuffLevelFloatTable populationPercStealRate;
        BuffLevelFloatTable allegianceRestoreRate;
        BuffLevelFloatTable planetHealthRestoreRate;
        BuffLevelFloatTable resourceGainPerc;
    };

    BuffOverTimeActionType buffOverTimeActionType = BuffOverTimeActionType::Invalid;
    OnDemand<Values> values;

    void Fields(FieldIo& io) override;
};

} // namespace Vorn
