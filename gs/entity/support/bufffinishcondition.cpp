#include "gs/entity/support/bufffinishcondition.h"

#include "engine/archive/typerows.h"

namespace Vorn {

namespace {

using Values = BuffFinishCondition::Values;
using Step = FieldStep<Values>;

constexpr Step kInstantActionTriggerType = [](FieldIo& io, Values& v) {
    io.Enum(u"instantActionTriggerType", v.instantActionTriggerType);
};
constexpr Step kTime = [](FieldIo& io, Values& v) { io.Record(u"time", v.time); };
constexpr Step kDamageNeeded = [](FieldIo& io, Values& v) { io.Record(u"damageNeeded", v.damageNeeded); };
constexpr Step kTypeOfDamageNeeded = [](FieldIo& io, Values& v) {
    io.Enum(u"typeOfDamageNeeded", v.typeOfDamageNeeded);
};
constexpr Step kFightersKilled = [](FieldIo& io, Values& v) { io.Record(u"fightersKilled", v.fightersKilled); };
constexpr Step kBuffTypeToQuery = [](FieldIo& io, Values& v) { io.Value(u"buffTypeToQuery", v.buffTypeToQuery); };
constexpr Step kHullPercent = [](FieldIo& io, Values& v) { io.Record(u"hullPercent", v.hullPercent); };
constexpr Step kResearchPrerequisites = [](FieldIo& io, Values& v) {
    io.Record(u"researchPrerequisites", v.researchPrerequisites);
};

constexpr TypeRow<Values, 2> kFinishConditionRows[] = {
    {u"AbilityUsed"},
    {u"AllOnDelayInstantActionsDone"},
    {u"AnyOnConditionInstantActionDone"},
    {u"AnyInstantActionWithTriggerTypeDone", {kInstantActionTriggerType}},
    {u"AllPeriodicActionsDone"},
    {u"AntiMatterDepleted"},
    {u"TimeElapsed", {kTime}},
    {u"DamageTaken", {kDamageNeeded, kTypeOfDamageNeeded}},
    {u"EnterHyperspace"},
    {u"ExitHyperspace"},
    {u"OutOfRange"},
    {u"NoTarget"},
    {u"FightersKilled", {kFightersKilled}},
    {u"FirstSpawnerNoLongerHasBuff", {kBuffTypeToQuery}},
    {u"LastSpawnerNoLongerHasBuff", {kBuffTypeToQuery}},
    {u"LastSpawnerInHyperspace"},
    {u"OwnerNoLongerHasBuff", {kBuffTypeToQuery}},
    {u"OwnerChanged"},
    {u"OwnerIsFriendlyToFirstSpawner"},
    {u"OwnerHullAbovePerc", {kHullPercent}},
    {u"ResearchNotMet", {kResearchPrerequisites}},
    {u"ShieldFailure"},
    {u"TargetIsConstructed"},
    {u"TargetNoLongerActivelyBeingConstructed"},
    {u"TargetConstructionCannotBeUpdated"},
    {u"TargetNoLongerHasBuff", {kBuffTypeToQuery}},
    {u"TargetOwnerIsNeutral"},
    {u"TargetOwnerIsFriendly"},
    {u"TargetOwnerIsHostile"},
};

constexpr auto kFinishConditionTexts = TextsOf(kFinishConditionRows);

constexpr EnumTable kBuffFinishConditionTypeTable = MakeTable("BuffFinishConditionType", kFinishConditionTexts);

constexpr BuffFinishConditionType kAbilityUsed{RowNumber(kBuffFinishConditionTypeTable, u"AbilityUsed")};
} // namespace

void BuffFinishCondition::Fields(FieldIo& io) {
    io.Enum(u"finishConditionType", finishConditionType, kBuffFinishConditionTypeTable);
    CheckAssert(finishConditionType != BuffFinishConditionType::Invalid, "false");
    if (io.Writing()) {
        // This value is written correctly, but a check fires.
        CheckAssert(finishConditionType != kAbilityUsed, "false");
    }
    RowFields(io, kFinishConditionRows, finishConditionType, values);
}

} // namespace Vorn
