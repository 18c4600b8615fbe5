#pragma once

#include "engine/archive/enumtable.h"

namespace Vorn {

// Paths and properties of upgrades.

enum class PlanetUpgradePathType : std::int32_t {
    Invalid = -1,
    Population,
    CivilianModules,
    TacticalModules,
    Home,
    ArtifactLevel,
    Infrastructure,
    Social,
    Industry,
    Smuggler
};

inline constexpr EnumRow<PlanetUpgradePathType> kPlanetUpgradePathTypeRows[] = {
    {PlanetUpgradePathType::Population, u"Population"},
    {PlanetUpgradePathType::CivilianModules, u"CivilianModules"},
    {PlanetUpgradePathType::TacticalModules, u"TacticalModules"},
    {PlanetUpgradePathType::Home, u"Home"},
    {PlanetUpgradePathType::ArtifactLevel, u"ArtifactLevel"},
    {PlanetUpgradePathType::Infrastructure, u"Infrastructure"},
    {PlanetUpgradePathType::Social, u"Social"},
    {PlanetUpgradePathType::Industry, u"Industry"},
    {PlanetUpgradePathType::Smuggler, u"Smuggler"}};
inline constexpr auto kPlanetUpgradePathTypeTexts =
    TextsInOrder<PlanetUpgradePathType::Smuggler>(kPlanetUpgradePathTypeRows);
template <>
inline constexpr EnumTable kEnumTable<PlanetUpgradePathType> = MakeTable("PlanetUpgradePathType",
                                                                         kPlanetUpgradePathTypeTexts);

enum class StarBaseUpgradePropertyType : std::int32_t { Invalid = -1 };

inline constexpr std::u16string_view kStarBaseUpgradePropertyTypeRows[] = {
    u"WeaponUpgradeLevel",    u"WeaponDamage",        u"MaxHullPoints",
    u"HullPointRestoreRate",  u"MaxShieldPoints",     u"ShieldPointRestoreRate",
    u"MaxShieldMitigation",   u"BaseArmorPoints",     u"MaxNumSquads",
    u"FrigateBuildRate",      u"BaseTradeIncomeRate", u"CultureSpreadRate",
    u"EnemyCultureRepelRate", u"MaxAllegianceBonus",  u"MaxAntiMatterPoints",
    u"AntiMatterRestoreRate", u"Population",          u"CultureMeshLevel",
    u"TradePortMeshLevel",    u"AbilityALevel",       u"AbilityBLevel",
    u"AbilityCLevel",         u"AbilityDLevel"};
template <>
inline constexpr EnumTable kEnumTable<StarBaseUpgradePropertyType> = MakeTable("StarBaseUpgradePropertyType",
                                                                               kStarBaseUpgradePropertyTypeRows);

enum class TitanUpgradePropertyType : std::int32_t { Invalid = -1 };

inline constexpr std::u16string_view kTitanUpgradePropertyTypeRows[] = {
    u"WeaponDamage",           u"MaxHullPoints",   u"HullPointRestoreRate", u"MaxShieldPoints",
    u"ShieldPointRestoreRate", u"BaseArmorPoints", u"MaxAntiMatterPoints",  u"AntiMatterRestoreRate",
    u"AbilityCooldownRate",    u"AbilityALevel",   u"AbilityBLevel",        u"AbilityCLevel",
    u"AbilityDLevel"};
template <>
inline constexpr EnumTable kEnumTable<TitanUpgradePropertyType> = MakeTable("TitanUpgradePropertyType",
                                                                            kTitanUpgradePropertyTypeRows);

enum class StarBaseUpgradeBoolPropertyType : std::int32_t { Invalid = -1 };
enum class TitanUpgradeBoolPropertyType : std::int32_t { Invalid = -1 };

// Two enumerations of the same rows, with different names in reports.
inline constexpr std::u16string_view kUpgradeBoolPropertyTypeRows[] = {u"CanPreventEnemyColonize",
                                                                       u"CanPreventPlanetLossByBombing"};
template <>
inline constexpr EnumTable kEnumTable<StarBaseUpgradeBoolPropertyType> = MakeTable("StarBaseUpgradeBoolPropertyType",
                                                                                   kUpgradeBoolPropertyTypeRows);
template <>
inline constexpr EnumTable kEnumTable<TitanUpgradeBoolPropertyType> = MakeTable("TitanUpgradeBoolPropertyType",
                                                                                kUpgradeBoolPropertyTypeRows);

} // namespace Vorn
