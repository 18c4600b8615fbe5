#include "gs/entity/support/buffactioncondition.h"

#include "engine/archive/typerows.h"

namespace Vorn {

namespace {

using Condition = BuffActionCondition;
using Step = FieldStep<Condition>;

constexpr Step kBuffType = [](FieldIo& io, Condition& c) { io.Value(u"conditionBuffType", c.conditionBuffType); };
constexpr Step kBuffShortName = [](FieldIo& io, Condition& c) {
    io.String(u"conditionBuffShortName", c.conditionBuffShortName);
};
constexpr Step kHullPerc = [](FieldIo& io, Condition& c) { io.Record(u"hullPerc", c.hullPerc); };
constexpr Step kHullAmount = [](FieldIo& io, Condition& c) { io.Record(u"hullAmount", c.hullAmount); };
constexpr Step kAntimatterAmount = [](FieldIo& io, Condition& c) {
    io.Record(u"antimatterAmount", c.antimatterAmount);
};

constexpr TypeRow<Condition, 2> kConditionRows[] = {
    {u"IfOwnerHasBuff", {kBuffType, kBuffShortName}},
    {u"IfOwnerDoesNotHaveBuff", {kBuffType, kBuffShortName}},
    {u"IfFirstSpawnerHasBuff", {kBuffType, kBuffShortName}},
    {u"IfFirstSpawnerDoesNotHaveBuff", {kBuffType, kBuffShortName}},
    {u"IfOwnerIsAboutToDie"},
    {u"IfOwnerHasHullLessThanPerc", {kHullPerc}},
    {u"IfOwnerHasHullGreaterThan", {kHullAmount}},
    {u"IfFirstSpawnerHasHullGreaterThan", {kHullAmount}},
    {u"IfOwnerHasAntimatterGreaterThan", {kAntimatterAmount}},
    {u"IfFirstSpawnerHasAntimatterGreaterThan", {kAntimatterAmount}},
    {u"IfOwnerHasDestabilizationProtection"},
    {u"IfOwnerDoesNotHaveDestabilizationProtection"},
    {u"IfOwnerIsFirstPlayerOwnedStarbaseAtOrbitbody"},
    {u"IfOwnerIsNotFirstPlayerOwnedStarbaseAtOrbitbody"},
    {u"IfTargetIsNotMinorFactionOwned"},
};

constexpr auto kConditionTexts = TextsOf(kConditionRows);

constexpr EnumTable kInstantActionConditionTypeTable = MakeTable("InstantActionConditionType", kConditionTexts);

} // namespace

void BuffActionCondition::Fields(FieldIo& io) {
    io.Enum(u"instantActionConditionType", instantActionConditionType, kInstantActionConditionTypeTable);
    RowFields(io, kConditionRows, instantActionConditionType, *this);
}

} // namespace Vorn
