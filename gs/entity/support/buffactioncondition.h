#pragma once

#include "engine/archive/record.h"
#include "gs/entity/support/bufflevelfloattable.h"
#include "gs/entity/support/entitydefname.h"

namespace Vorn {

// The numbers are the rows of the table in buffactioncondition.cpp.
enum class InstantActionConditionType : std::int32_t { Invalid = -1 };

// What must hold for an action whose trigger is a condition. The type selects the fields that follow it.
struct BuffActionCondition : Record {
    InstantActionConditionType instantActionConditionType = InstantActionConditionType::Invalid;
    EntityDefNameOf<EntityType::Buff> conditionBuffType;
    FixedString<256> conditionBuffShortName;
    BuffLevelFloatTable hullPerc;
    BuffLevelFloatTable hullAmount;
    BuffLevelFloatTable antimatterAmount;

    void Fields(FieldIo& io) override;
};

} // namespace Vorn
