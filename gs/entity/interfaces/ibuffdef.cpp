#include "gs/entity/interfaces/ibuffdef.h"

#include "engine/core/reporting.h"

namespace Vorn {

namespace {
constexpr int kMaxInstantActions = 5;
constexpr int kMaxPeriodicActions = 3;
} // namespace

void IBuffDef::Fields(FieldIo& io) {
    io.Enum(u"onReapplyDuplicateType", onReapplyDuplicateType);
    io.Enum(u"buffStackingLimitType", buffStackingLimitType);
    io.Uint(u"stackingLimit", stackingLimit);
    if (static_cast<std::int32_t>(stackingLimit) > 0) {
        io.Bool(u"allowFirstSpawnerToStack", allowFirstSpawnerToStack);
    }
    io.Enum(u"buffExclusivityForAIType", buffExclusivityForAIType);
    io.Bool(u"isInterruptable", isInterruptable);
    io.Bool(u"isChannelling", isChannelling);
    ListFields(io);
    if (io.Reading()) {
        ReportTooManyActions();
    }
}

void IBuffDef::ListFields(FieldIo& io) {
    io.GrowingList(u"numInstantActions", instantActions, [&](auto& action) { io.Record(u"instantAction", action); });
    io.GrowingList(u"numPeriodicActions", periodicActions, [&](auto& action) { io.Record(u"periodicAction", action); });
    io.GrowingList(u"numOverTimeActions", overTimeActions, [&](auto& action) { io.Record(u"overTimeAction", action); });
    io.GrowingList(u"numEntityModifiers", entityModifiers,
                   [&](auto& modifier) { io.Record(u"entityModifier", modifier); });
    io.GrowingList(u"numEntityBoolModifiers", entityBoolModifiers,
                   [&](auto& modifier) { io.Enum(u"entityBoolModifier", modifier); });
    io.GrowingList(u"numFinishConditions", finishConditions,
                   [&](auto& condition) { io.Record(u"finishCondition", condition); });
}

void IBuffDef::ReportTooManyActions() const {
    if (instantActions.Size() > kMaxInstantActions) {
        ReportError(u"Too many instant actions (%d). Can only support %d\n", instantActions.Size(), kMaxInstantActions);
    }
    if (periodicActions.Size() > kMaxPeriodicActions) {
        ReportError(u"Too many periodic actions (%d). Can only support %d\n", periodicActions.Size(),
                    kMaxPeriodicActions);
    }
}

} // namespace Vorn
