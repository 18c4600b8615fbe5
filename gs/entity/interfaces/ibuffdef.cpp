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
    io.ReportedList(u"numInstantActions", kMaxInstantActions, instantActions, io.Records(u"instantAction"));
    io.ReportedList(u"numPeriodicActions", kMaxPeriodicActions, periodicActions, io.Records(u"periodicAction"));
    io.GrowingList(u"numOverTimeActions", overTimeActions, io.Records(u"overTimeAction"));
    io.GrowingList(u"numEntityModifiers", entityModifiers, io.Records(u"entityModifier"));
    io.GrowingList(u"numEntityBoolModifiers", entityBoolModifiers, io.Enums(u"entityBoolModifier"));
    io.GrowingList(u"numFinishConditions", finishConditions, io.Records(u"finishCondition"));
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
