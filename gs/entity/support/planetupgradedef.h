#pragma once

#include "engine/archive/record.h"
#include "engine/datastructures/fixedarray.h"
#include "gs/entity/support/price.h"
#include "gs/entity/support/upgradeenums.h"

namespace Vorn {

// A step of an upgrade path. The type of the path, which is not stored, determines which fields a stage has after its
// price and time; all others stay 0.
struct PlanetUpgradePathStageDef : Record {
    PlanetUpgradePathType pathType = PlanetUpgradePathType::Invalid;
    Price price;
    float upgradeTime = 0.0f;
    float maxPopulation = 0.0f;
    float populationGrowthRate = 0.0f;
    // A penalty in the path of the population, a bonus in that of the home planet.
    float taxModifier = 0.0f;
    float maxCivilianModuleSlotCount = 0.0f;
    float maxTacticalModuleSlotCount = 0.0f;
    std::uint32_t maxModuleConstructorCount = 0;
    Bool isHomePlanet;
    float homePlanetMetalIncomeBonus = 0.0f;
    float homePlanetCrystalIncomeBonus = 0.0f;
    float maxHealth = 0.0f;
    float tradeIncomeModifier = 0.0f;
    float shipBuildRateModifier = 0.0f;
    float cultureSpreadRateModifier = 0.0f;
    float corruptionPercent = 0.0f;
    float smugglingPercent = 0.0f;

    void Fields(FieldIo& io) override;

private:
    void PathFields(FieldIo& io);
    void PopulationFields(FieldIo& io);
    void SpecialisationFields(FieldIo& io);
};

// The stages of one path of upgrades of a planet; each surplus stage only fires the check of the vector.
struct PlanetUpgradePathDef : Record {
    PlanetUpgradePathType pathType = PlanetUpgradePathType::Invalid;
    FixedVector<PlanetUpgradePathStageDef, 10> stages;

    void Fields(FieldIo& io) override;
};

// All paths of upgrades of a planet. Files always hold every one.
struct PlanetUpgradeDef : Record {
    static constexpr int kPathCount = kEnumTable<PlanetUpgradePathType>.rowCount;

    PlanetUpgradeDef();

    FixedArray<PlanetUpgradePathDef, kPathCount> paths;

    void Fields(FieldIo& io) override;
};

} // namespace Vorn
