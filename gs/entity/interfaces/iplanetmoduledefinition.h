#pragma once

#include "engine/archive/record.h"
#include "gs/entity/support/entitydefname.h"
#include "gs/entity/support/price.h"
#include "gs/entity/support/researchenums.h"
#include "gs/entity/support/researchprerequisites.h"
#include "gs/entity/support/sharedenums.h"

namespace Vorn {

enum class PlanetUpgradeModuleSlotType : std::int32_t { Invalid = -1 };

inline constexpr std::u16string_view kPlanetUpgradeModuleSlotTypeRows[] = {u"Civilian", u"Tactical"};
template <>
inline constexpr EnumTable kEnumTable<PlanetUpgradeModuleSlotType> = MakeTable("PlanetUpgradeModuleSlotType",
                                                                               kPlanetUpgradeModuleSlotTypeRows);

enum class PlanetModuleRoleType : std::int32_t { Invalid = -1 };

inline constexpr std::u16string_view kPlanetModuleRoleTypeRows[] = {
    u"FRIGATEFACTORY",      u"CAPITALSHIPFACTORY", u"CULTURE",
    u"TRADEPORT",           u"REFINERY",           u"CRYSTALEXTRACTOR",
    u"METALEXTRACTOR",      u"JUMPBLOCKER",        u"WEAPONDEFENSE",
    u"HANGARDEFENSE",       u"RESEARCHCOMBAT",     u"RESEARCHNONCOMBAT",
    u"ANTIMATTERRECHARGER", u"NANOWEAPONJAMMER",   u"REPAIRPLATFORM",
    u"PHASEGATE",           u"SHIELDGENERATOR",    u"CANNON",
    u"SPACEMINE",           u"TITANFACTORY"};
template <>
inline constexpr EnumTable kEnumTable<PlanetModuleRoleType> = MakeTable("PlanetModuleRoleType",
                                                                        kPlanetModuleRoleTypeRows);

// The purpose of a module in orbit, its costs, its strength and its placement. -1 marks values that a file must set.
// Checks require that both distances of placement are 0 or more, that at least one is spawned, and just one if the
// module extracts a resource.
struct IPlanetModuleDefinition : Record {
    PlanetUpgradeModuleSlotType planetUpgradeSlotType = PlanetUpgradeModuleSlotType::Invalid;
    float planetUpgradeSlotCount = 0.0f;
    Price basePrice;
    FixedString<256> nameStringID;
    FixedString<256> descriptionStringID;
    PlanetModuleRoleType planetModuleRoleType = PlanetModuleRoleType::Invalid;
    PlayerEntityCountType statCountType = PlayerEntityCountType::Invalid;
    ResearchPrerequisites prerequisites;
    float maxHullPoints = -1.0f;
    float hullPointRestoreRate = -1.0f;
    float baseArmorPoints = 0.0f;
    float maxShieldPoints = -1.0f;
    float shieldPointRestoreRate = -1.0f;
    float maxShieldMitigation = 0.0f;
    float experiencePointsForDestroying = -1.0f;
    Resource resourceExtractionType = Resource::Invalid;
    float cultureSpreadRate = 0.0f;
    Bool isAffectedBySimilarModuleCostResearch;
    float placementRadius = 0.0f;
    float nearPlacementDistOffset = -1.0f;
    float farPlacementDistOffset = -1.0f;
    std::uint32_t spawnCount = 0;
    EntityDefNameOf<EntityType::SpaceMine> swapMineType;

    void Fields(FieldIo& io) override;

private:
    void CheckValues() const;
};

} // namespace Vorn
