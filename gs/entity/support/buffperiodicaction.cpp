#include "gs/entity/support/buffperiodicaction.h"

namespace Vorn {

void BuffPeriodicAction::Fields(FieldIo& io) {
    io.Enum(u"actionCountType", actionCountType);
    if (actionCountType != ActionCountType::Infinite) {
        io.Record(u"actionCount", actionCount);
    }
    io.Record(u"actionIntervalTime", actionIntervalTime);
    io.Block(instantAction);
    if (io.Reading()) {
        CheckInstantAction();
    }
}

void BuffPeriodicAction::CheckInstantAction() const {
    CheckAssert(instantAction.delayTime == 0.0f, "instantAction.delayTime == 0.f");
    const InstantActionTriggerType trigger = instantAction.instantActionTriggerType;
    CheckAssert(trigger == InstantActionTriggerType::AlwaysPerform || trigger == InstantActionTriggerType::OnChance ||
                    trigger == InstantActionTriggerType::OnCondition,
                "(instantAction.instantActionTriggerType == InstantActionTriggerType::AlwaysPerform) || "
                "(instantAction.instantActionTriggerType == InstantActionTriggerType::OnChance) || "
                "(instantAction.instantActionTriggerType == InstantActionTriggerType::OnCondition)");
}

} // namespace Vorn
