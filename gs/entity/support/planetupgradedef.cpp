#include "gs/entity/support/planetupgradedef.h"

namespace Vorn {

namespace {
constexpr Label kPathLabels[] = {u"path:Population", u"path:CivilianModules", u"path:TacticalModules",
                                 u"path:Home",       u"path:ArtifactLevel",   u"path:Infrastructure",
                                 u"path:Social",     u"path:Industry",        u"path:Smuggler"};
}

void PlanetUpgradePathStageDef::Fields(FieldIo& io) {
    CheckAssert(pathType != PlanetUpgradePathType::Invalid, "pathType != PlanetUpgradePathType::Invalid");
    io.Record(u"price", price);
    io.Float(u"upgradeTime", upgradeTime);
    PathFields(io);
}

void PlanetUpgradePathStageDef::PathFields(FieldIo& io) {
    switch (pathType) {
    case PlanetUpgradePathType::Population:
        PopulationFields(io);
        io.Float(u"developmentTaxPenalty", taxModifier);
        break;
    case PlanetUpgradePathType::CivilianModules:
        io.Float(u"maxModuleSlotCount:Civilian", maxCivilianModuleSlotCount);
        io.Uint(u"maxModuleConstructorCount", maxModuleConstructorCount);
        break;
    case PlanetUpgradePathType::TacticalModules:
        io.Float(u"maxModuleSlotCount:Tactical", maxTacticalModuleSlotCount);
        io.Uint(u"maxModuleConstructorCount", maxModuleConstructorCount);
        break;
    case PlanetUpgradePathType::Home:
        io.Bool(u"isHomePlanet", isHomePlanet);
        io.Float(u"homePlanetTaxRateBonus", taxModifier);
        io.Float(u"homePlanetMetalIncomeBonus", homePlanetMetalIncomeBonus);
        io.Float(u"homePlanetCrystalIncomeBonus", homePlanetCrystalIncomeBonus);
        break;
    case PlanetUpgradePathType::Infrastructure:
        io.Float(u"maxHealth", maxHealth);
        break;
    case PlanetUpgradePathType::Social:
        PopulationFields(io);
        SpecialisationFields(io);
        break;
    case PlanetUpgradePathType::Industry:
        // Unlike a social planet, one of industry has no growth rate.
        io.Float(u"maxPopulation", maxPopulation);
        SpecialisationFields(io);
        break;
    case PlanetUpgradePathType::Smuggler:
        io.Float(u"corruptionPercent", corruptionPercent);
        io.Float(u"smugglingPercent", smugglingPercent);
        break;
    case PlanetUpgradePathType::ArtifactLevel:
    case PlanetUpgradePathType::Invalid:
        break;
    }
}

void PlanetUpgradePathStageDef::PopulationFields(FieldIo& io) {
    io.Float(u"maxPopulation", maxPopulation);
    io.Float(u"populationGrowthRate", populationGrowthRate);
}

void PlanetUpgradePathStageDef::SpecialisationFields(FieldIo& io) {
    io.Float(u"tradeIncomeModifier", tradeIncomeModifier);
    io.Float(u"shipBuildRateModifier", shipBuildRateModifier);
    io.Float(u"cultureSpreadRateModifier", cultureSpreadRateModifier);
}

void PlanetUpgradePathDef::Fields(FieldIo& io) {
    io.CappedList(u"stageCount", stages, [&](PlanetUpgradePathStageDef& stage) {
        stage.pathType = pathType;
        io.Record(u"stage", stage);
    });
}

PlanetUpgradeDef::PlanetUpgradeDef() {
    for (int i = 0; i < kPathCount; ++i) {
        paths[i].pathType = static_cast<PlanetUpgradePathType>(i);
    }
}

void PlanetUpgradeDef::Fields(FieldIo& io) {
    io.LabelledArray(kPathLabels, paths, &FieldIo::Records);
}

} // namespace Vorn
