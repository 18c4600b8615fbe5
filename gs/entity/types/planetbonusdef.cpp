#include "gs/entity/types/planetbonusdef.h"

namespace Vorn {

namespace {

constexpr Label kFloatBonusLabels[] = {u"floatBonus:AdditiveCultureSpreadPerc",
                                       u"floatBonus:AdditivePopulation",
                                       u"floatBonus:AdditivePlanetHealth",
                                       u"floatBonus:AdditiveSlotsCivilian",
                                       u"floatBonus:AdditiveSlotsTactical",
                                       u"floatBonus:AdditiveTaxIncome",
                                       u"floatBonus:AdditiveTradeIncomePerc",
                                       u"floatBonus:BombingDamageAsDamageTargetAdjustment",
                                       u"floatBonus:MaxAllegiancePercBonus",
                                       u"floatBonus:MetalIncomePerc",
                                       u"floatBonus:CrystalIncomePerc",
                                       u"floatBonus:GravityWellRadiusPerc",
                                       u"floatBonus:ModuleBuildCostPerc",
                                       u"floatBonus:ModuleBuildRatePerc",
                                       u"floatBonus:PlanetUpgradeBuildCostPerc",
                                       u"floatBonus:PlanetUpgradeBuildRatePerc",
                                       u"floatBonus:PopulationGrowthPerc",
                                       u"floatBonus:ShipBuildCostAdjustment",
                                       u"floatBonus:WeaponDamageAtGravityWellMultiplier"};

constexpr Label kIntBonusLabels[] = {u"intBonus:MaxSpaceMines", u"intBonus:MaxStarbases",
                                     u"intBonus:ModuleConstructors", u"intBonus:SpacePonies"};

} // namespace

void PlanetBonusDef::Fields(FieldIo& io) {
    io.Uint(u"minUpgradeLevelNeeded", minUpgradeLevelNeeded);
    io.Uint(u"maxUpgradeLevelNeeded", maxUpgradeLevelNeeded);
    io.String(u"nameStringID", nameStringID, NameKind::StringId);
    io.String(u"descStringID", descStringID, NameKind::StringId);
    io.LabelledArray(kFloatBonusLabels, floatBonuses, &FieldIo::Floats);
    io.LabelledArray(kIntBonusLabels, intBonuses, &FieldIo::Uints);
    io.Int(u"dlcId", dlcId);
    io.Block(hud);
    if (io.Reading()) {
        CheckAssert(static_cast<std::int32_t>(minUpgradeLevelNeeded) <=
                        static_cast<std::int32_t>(maxUpgradeLevelNeeded),
                    "minUpgradeLevelNeeded <= maxUpgradeLevelNeeded");
    }
}

} // namespace Vorn
