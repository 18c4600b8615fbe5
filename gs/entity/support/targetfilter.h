#pragma once

#include "engine/archive/record.h"

namespace Vorn {

enum class TargetOwnership : std::int32_t { Invalid = -1 };

inline constexpr std::u16string_view kTargetOwnershipRows[] = {
    u"Player", u"Allied", u"Friendly", u"Enemy", u"NoOwner", u"AlliedOrEnemy", u"UncontrolledMinorFaction"};
template <>
inline constexpr EnumTable kEnumTable<TargetOwnership> = MakeTable("TargetOwnership", kTargetOwnershipRows);

enum class TargetObject : std::int32_t { Invalid = -1 };

inline constexpr std::u16string_view kTargetObjectRows[] = {u"CapitalShip",
                                                            u"Frigate",
                                                            u"EnvoyFrigate",
                                                            u"Fighter",
                                                            u"Planet",
                                                            u"PlanetModule",
                                                            u"PlaceHolderPlanetModule",
                                                            u"SpaceMine",
                                                            u"PlaceHolderSpaceMine",
                                                            u"Star",
                                                            u"StarBase",
                                                            u"Titan",
                                                            u"Corvette"};
template <>
inline constexpr EnumTable kEnumTable<TargetObject> = MakeTable("TargetObject", kTargetObjectRows);

enum class TargetSpace : std::int32_t { Invalid = -1 };

inline constexpr std::u16string_view kTargetSpaceRows[] = {u"Normal", u"Phase"};
template <>
inline constexpr EnumTable kEnumTable<TargetSpace> = MakeTable("TargetSpace", kTargetSpaceRows);

enum class TargetConstraint : std::int32_t { Invalid = -1 };

inline constexpr std::u16string_view kTargetConstraintRows[] = {u"NotSelf",
                                                                u"LinkedSquad",
                                                                u"LinkedCargoShip",
                                                                u"CanBeCaptured",
                                                                u"CanBeJumpBlocked",
                                                                u"CanPhaseDodge",
                                                                u"CanHaveFighters",
                                                                u"CanHaveShields",
                                                                u"CanSpreadWeaponDamage",
                                                                u"HasAbilityWithCooldown",
                                                                u"HasColonizeAbility",
                                                                u"HasAntiMatterPool",
                                                                u"HasPhaseMissiles",
                                                                u"HasPopulation",
                                                                u"HasEnergyWeapons",
                                                                u"HasHullDamage",
                                                                u"HasShieldDamage",
                                                                u"HasAntiMatterShortage",
                                                                u"HasWeapons",
                                                                u"IsCargoShip",
                                                                u"IsColonizable",
                                                                u"IsRuinable",
                                                                u"IsExplored",
                                                                u"NotIsExplored",
                                                                u"IsResourceExtractor",
                                                                u"IsMovingToLocalOrbitBody",
                                                                u"IsPsi",
                                                                u"NotIsTech",
                                                                u"WithinCurrentSolarSystem",
                                                                u"ModuleUnderConstruction",
                                                                u"IsActivelyBeingConstructed",
                                                                u"NotActivelyBeingConstructed",
                                                                u"IsHomeworld",
                                                                u"NotIsHomeworld",
                                                                u"NotIsOccupationPlanet",
                                                                u"NotInvulnerable",
                                                                u"IsInFriendlyGravityWell",
                                                                u"IsInNonFriendlyGravityWell",
                                                                u"IsPetOfTargetter",
                                                                u"HasDestabilizationProtection",
                                                                u"DoesNotHaveDestabilizationProtection",
                                                                u"IsControllable",
                                                                u"IsNotStarBaseConstructor",
                                                                u"OwnerPlayerHasTitan",
                                                                u"NotFlagship",
                                                                u"IsBoarded",
                                                                u"NotIsBoarded",
                                                                u"NotIsIllusionShip",
                                                                u"NotIsMinorFactionOwned",
                                                                u"NotIsOutlaw"};
template <>
inline constexpr EnumTable kEnumTable<TargetConstraint> = MakeTable("TargetConstraint", kTargetConstraintRows);

// Which entities an action can have as targets. A filter without objects is reported and kept.
struct TargetFilter : Record {
    FixedVector<TargetOwnership, kEnumTable<TargetOwnership>.rowCount> ownerships;
    FixedVector<TargetObject, kEnumTable<TargetObject>.rowCount> objects;
    FixedVector<TargetSpace, kEnumTable<TargetSpace>.rowCount> spaces;
    FixedVector<TargetConstraint, kEnumTable<TargetConstraint>.rowCount> constraints;

    void Fields(FieldIo& io) override;
};

} // namespace Vorn
