#pragma once

#include "engine/archive/record.h"
#include "gs/entity/support/bufflevelfloattable.h"

namespace Vorn {

enum class BuffEntityModifierType : std::int32_t { Invalid = -1 };

inline constexpr std::u16string_view kBuffEntityModifierTypeRows[] = {u"AbilityCooldownRate",
                                                                      u"AntimatterCostOfNonUltimates",
                                                                      u"AntimatterRestoreRate",
                                                                      u"AntimatterRestoration",
                                                                      u"AntiModuleDamageAsDamageDealer",
                                                                      u"ArmorAsDamageDealer",
                                                                      u"ArmorAsDamageTarget",
                                                                      u"BonusMaxSquads",
                                                                      u"ChanceToChangeAttackerTargetAsDamageTarget",
                                                                      u"ChanceToHitAsDamageDealer",
                                                                      u"ChanceToHitAsDamageTarget",
                                                                      u"ChanceToIgnoreShieldsAsDamageDealer",
                                                                      u"ChanceToIgnoreShieldsAsDamageTarget",
                                                                      u"ChanceToBeNotOptimallyTargetted",
                                                                      u"CultureRepelRateAdditive",
                                                                      u"CultureRepelRateScalar",
                                                                      u"CultureSpread",
                                                                      u"CultureSpreadModifier",
                                                                      u"CultureSpreadRateForOwner",
                                                                      u"DamageAsDamageDealer",
                                                                      u"DamageAsDamageTarget",
                                                                      u"DamageAsDamageTargetFromForward",
                                                                      u"DamageSharing",
                                                                      u"EnergyDamageAsDamageDealer",
                                                                      u"EnergyDamageAsDamageTarget",
                                                                      u"EnergyWeaponCooldown",
                                                                      u"FightersPerSquadron",
                                                                      u"GravityWellRangeForHyperspace",
                                                                      u"HullPointRestoreRate",
                                                                      u"HullPointRestoration",
                                                                      u"HyperspaceChargeUpRate",
                                                                      u"HyperspaceSpeed",
                                                                      u"AngularThrust",
                                                                      u"LinearMaxSpeed",
                                                                      u"LinearThrust",
                                                                      u"MaxHullPoints",
                                                                      u"MaxShieldPoints",
                                                                      u"PhysicalDamageAsDamageDealer",
                                                                      u"PhysicalDamageAsDamageTarget",
                                                                      u"PhysicalWeaponCooldown",
                                                                      u"PlanetBombingCooldown",
                                                                      u"PlanetBombingDamageAbsorption",
                                                                      u"PlanetBombingDamageAsDamageDealer",
                                                                      u"PlanetHealthMaxAdjustment",
                                                                      u"PlanetMaxPopulation",
                                                                      u"PlanetModuleBuildTime",
                                                                      u"PlanetPopulationGrowthRate",
                                                                      u"PlanetProductionStolen",
                                                                      u"PlanetResourceOutput",
                                                                      u"PlanetTaxRate",
                                                                      u"PlanetUpgradeCost",
                                                                      u"PlanetUpgradeBuildRateAdjustment",
                                                                      u"PropagateWeaponDamagePerc",
                                                                      u"ResourceExtractionRate",
                                                                      u"ShieldMitigation",
                                                                      u"ShieldPointRestoreRate",
                                                                      u"ShieldPointRestoration",
                                                                      u"ShipBuildTime",
                                                                      u"RefineryIncome",
                                                                      u"TradeIncome",
                                                                      u"UnderConstructionRate",
                                                                      u"WeaponCooldown",
                                                                      u"WeaponRange",
                                                                      u"EnemyCultureSpread"};
template <>
inline constexpr EnumTable kEnumTable<BuffEntityModifierType> = MakeTable("BuffEntityModifierType",
                                                                          kBuffEntityModifierTypeRows);

enum class BuffEntityBoolModifierType : std::int32_t { Invalid = -1 };

inline constexpr std::u16string_view kBuffEntityBoolModifierTypeRows[] = {u"ActivelyBeingConstructed",
                                                                          u"Boarded",
                                                                          u"CanBeCaptured",
                                                                          u"CannotBeColonized",
                                                                          u"CannotBeDamaged",
                                                                          u"CancelCannotBeDamaged",
                                                                          u"CannotBeScuttled",
                                                                          u"DetectIncomingHyperspacingEntities",
                                                                          u"DisableAbilities",
                                                                          u"DisableAbilitiesUltimate",
                                                                          u"DisableConstruction",
                                                                          u"DisableFighterLaunch",
                                                                          u"DisableModuleFunctionality",
                                                                          u"DisablePhaseJump",
                                                                          u"DisableLinearEngines",
                                                                          u"DisableAngularEngines",
                                                                          u"DisableRegeneration",
                                                                          u"DisableWeapons",
                                                                          u"DisableWeaponsUltimate",
                                                                          u"ForceIsDamagedOverlayInHyperspace",
                                                                          u"HasDestabilizedHyperspaceEffect",
                                                                          u"HasShieldMeshEffect",
                                                                          u"HasTauntTarget",
                                                                          u"IsInvisible",
                                                                          u"ImmuneToNonUltimateDisable",
                                                                          u"IsFlagship",
                                                                          u"IsIllusionShip",
                                                                          u"IsResourceFocusActive",
                                                                          u"InstantBuildFighters",
                                                                          u"IsPhaseGateEndPoint",
                                                                          u"JumpBlockerImmune",
                                                                          u"PhaseDodge",
                                                                          u"PhaseOut",
                                                                          u"CancelPhaseOut",
                                                                          u"ProxySensor",
                                                                          u"ApplyProxySensor",
                                                                          u"WeaponsDealNoDamage",
                                                                          u"NextAbilityAmplified",
                                                                          u"PreventDeath"};
template <>
inline constexpr EnumTable kEnumTable<BuffEntityBoolModifierType> = MakeTable("BuffEntityBoolModifierType",
                                                                              kBuffEntityBoolModifierTypeRows);

// A number of an entity that a buff changes.
struct BuffEntityModifier : Record {
    BuffEntityModifierType buffEntityModifierType = BuffEntityModifierType::Invalid;
    BuffLevelFloatTable value;

    void Fields(FieldIo& io) override;
};

} // namespace Vorn
