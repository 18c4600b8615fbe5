#pragma once

#include "gs/entity/support/buffinstantaction.h"
#include "gs/entity/support/researchprerequisites.h"

namespace Vorn {

// The numbers are the rows of the table in bufffinishcondition.cpp.
enum class BuffFinishConditionType : std::int32_t { Invalid = -1 };

// What ends a buff. The type selects the fields that follow it; without a type there are none, and the check "false"
// fires.
struct BuffFinishCondition : Record {
    // The values of all types, named after their fields.
    struct Values {
        InstantActionTriggerType instantActionTriggerType = InstantActionTriggerType::Invalid;
        BuffLevelFloatTable time;
        BuffLevelFloatTable damageNeeded;
        DamageAffectType typeOfDamageNeeded = DamageAffectType::Invalid;
        BuffLevelFloatTable fightersKilled;
        EntityDefNameOf<EntityType::Buff> buffTypeToQuery;
        BuffLevelFloatTable hullPercent;
        ResearchPrerequisites researchPrerequisites;
    };

    BuffFinishConditionType finishConditionType = BuffFinishConditionType::Invalid;
    OnDemand<Values> values;

    void Fields(FieldIo& io) override;
};

} // namespace Vorn
