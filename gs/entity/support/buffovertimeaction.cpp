#include "gs/entity/support/buffovertimeaction.h"

#include "engine/archive/typerows.h"

namespace Vorn {

namespace {

using Values = BuffOverTimeAction::Values;
using Step = FieldStep<Values>;

constexpr Step kDamageRate = [](FieldIo& io, Values& v) { io.Record(u"damageRate", v.damageRate); };
constexpr Step kDamageAffectType = [](FieldIo& io, Values& v) { io.Enum(u"damageAffectType", v.damageAffectType); };
constexpr Step kDamageType = [](FieldIo& io, Values& v) { io.Enum(u"damageType", v.damageType); };
constexpr Step kIsDamageShared = [](FieldIo& io, Values& v) { io.Bool(u"isDamageShared", v.isDamageShared); };
constexpr Step kPopulationKillRate = [](FieldIo& io, Values& v) {
    io.Record(u"populationKillRate", v.populationKillRate);
};
constexpr Step kBuildRate = [](FieldIo& io, Values& v) { io.Record(u"buildRate", v.buildRate); };
constexpr Step kModuleCostFraction = [](FieldIo& io, Values& v) {
    io.Record(u"moduleCostFraction", v.moduleCostFraction);
};
constexpr Step kDrainAntiMatterRate = [](FieldIo& io, Values& v) {
    io.Record(u"drainAntiMatterRate", v.drainAntiMatterRate);
};
constexpr Step kEarnRate = [](FieldIo& io, Values& v) { io.Record(u"earnRate", v.earnRate); };
constexpr Step kAntiMatterRestoreRate = [](FieldIo& io, Values& v) {
    io.Record(u"antiMatterRestoreRate", v.antiMatterRestoreRate);
};
constexpr Step kShieldRestoreRate = [](FieldIo& io, Values& v) {
    io.Record(u"shieldRestoreRate", v.shieldRestoreRate);
};
constexpr Step kHullRestoreRate = [](FieldIo& io, Values& v) { io.Record(u"hullRestoreRate", v.hullRestoreRate); };
constexpr Step kTargetFilter = [](FieldIo& io, Values& v) { io.Record(u"targetFilter", v.targetFilter); };
constexpr Step kRange = [](FieldIo& io, Values& v) { io.Record(u"range", v.range); };
constexpr Step kMaxNumTargets = [](FieldIo& io, Values& v) { io.Record(u"maxNumTargets", v.maxNumTargets); };
constexpr Step kDamagePerImpact = [](FieldIo& io, Values& v) { io.Record(u"damagePerImpact", v.damagePerImpact); };
constexpr Step kPullForceMagnitude = [](FieldIo& io, Values& v) {
    io.Float(u"pullForceMagnitude", v.pullForceMagnitude);
};
constexpr Step kStolenPlanetProductionPerc = [](FieldIo& io, Values& v) {
    io.Record(u"stolenPlanetProductionPerc", v.stolenPlanetProductionPerc);
};
constexpr Step kPopulationPercStealRate = [](FieldIo& io, Values& v) {
    io.Record(u"populationPercStealRate", v.populationPercStealRate);
};
constexpr Step kAllegianceRestoreRate = [](FieldIo& io, Values& v) {
    io.Record(u"allegianceRestoreRate", v.allegianceRestoreRate);
};
constexpr Step kPlanetHealthRestoreRate = [](FieldIo& io, Values& v) {
    io.Record(u"planetHealthRestoreRate", v.planetHealthRestoreRate);
};
constexpr Step kResourceGainPerc = [](FieldIo& io, Values& v) { io.Record(u"resourceGainPerc", v.resourceGainPerc); };

constexpr TypeRow<Values, 5> kOverTimeActionRows[] = {
    {u"DoDamage", {kDamageRate, kDamageAffectType, kDamageType, kIsDamageShared}},
    {u"DoDamageToPlanet", {kDamageRate, kPopulationKillRate}},
    {u"DoPercOfMaxDamageToPlanet", {kDamageRate, kPopulationKillRate}},
    {u"DoDamageToTarget", {kDamageRate, kDamageAffectType, kDamageType, kIsDamageShared}},
    {u"DoModuleConstruction", {kBuildRate, kModuleCostFraction}},
    {u"DrainAntiMatter", {kDrainAntiMatterRate}},
    {u"DrainAntiMatterAndDoDamage", {kDrainAntiMatterRate, kDamageRate, kIsDamageShared}},
    {u"EarnCredits", {kEarnRate}},
    {u"EarnResources", {kEarnRate}},
    {u"RestoreAntiMatter", {kAntiMatterRestoreRate}},
    {u"RestoreShields", {kShieldRestoreRate}},
    {u"RestoreHull", {kHullRestoreRate}},
    {u"Magnetize", {kTargetFilter, kRange, kMaxNumTargets, kDamagePerImpact, kPullForceMagnitude}},
    {u"StealPlanetProduction", {kStolenPlanetProductionPerc}},
    {u"StealPopulationFromAdjacentPlanets", {kPopulationPercStealRate}},
    {u"RestoreAllegiance", {kAllegianceRestoreRate}},
    {u"RestorePlanetHealth", {kPlanetHealthRestoreRate}},
    {u"DoDamageAndGiveResourceCostPerc", {kResourceGainPerc, kDamageRate}},
};

constexpr auto kOverTimeActionTexts = TextsOf(kOverTimeActionRows);

constexpr EnumTable kBuffOverTimeActionTypeTable = MakeTable("BuffOverTimeActionType", kOverTimeActionTexts);

} // namespace

void BuffOverTimeAction::Fields(FieldIo& io) {
    io.Enum(u"buffOverTimeActionType", buffOverTimeActionType, kBuffOverTimeActionTypeTable);
    CheckAssert(buffOverTimeActionType != BuffOverTimeActionType::Invalid, "false");
    RowFields(io, kOverTimeActionRows, buffOverTimeActionType, values);
}

} // namespace Vorn
