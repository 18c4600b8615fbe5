#pragma once

#include "engine/archive/enumtable.h"

namespace Vorn {

// Tables that several families of definitions use. An enumeration whose values select nothing is carried without names.

enum class AutoAttackRange : std::int32_t { Invalid = -1 };

inline constexpr std::u16string_view kAutoAttackRangeRows[] = {u"None", u"LocalArea", u"GravityWell"};
template <>
inline constexpr EnumTable kEnumTable<AutoAttackRange> = MakeTable("AutoAttackRange", kAutoAttackRangeRows);

enum class CohesionRange : std::int32_t { Invalid = -1 };

inline constexpr std::u16string_view kCohesionRangeRows[] = {u"None", u"Near", u"Far"};
template <>
inline constexpr EnumTable kEnumTable<CohesionRange> = MakeTable("CohesionRange", kCohesionRangeRows);

enum class DamageAffectType : std::int32_t { Invalid = -1 };

inline constexpr std::u16string_view kDamageAffectTypeRows[] = {u"AFFECTS_ONLY_HULL", u"AFFECTS_ONLY_SHIELDS",
                                                                u"AFFECTS_SHIELDS_AND_HULL"};
template <>
inline constexpr EnumTable kEnumTable<DamageAffectType> = MakeTable("DamageAffectType", kDamageAffectTypeRows);

enum class DamageApplyType : std::int32_t { Invalid = -1 };

inline constexpr std::u16string_view kDamageApplyTypeRows[] = {u"BACKLOADED", u"OVERTIME"};
template <>
inline constexpr EnumTable kEnumTable<DamageApplyType> = MakeTable("DamageApplyType", kDamageApplyTypeRows);

enum class DamageType : std::int32_t { Invalid = -1 };

inline constexpr std::u16string_view kDamageTypeRows[] = {u"ENERGY", u"PHYSICAL"};
template <>
inline constexpr EnumTable kEnumTable<DamageType> = MakeTable("DamageType", kDamageTypeRows);

enum class ArmorType : std::int32_t { Invalid = -1 };

inline constexpr std::u16string_view kArmorTypeRows[] = {u"CapitalShip", u"VeryLight", u"Light",  u"Medium", u"Heavy",
                                                         u"VeryHeavy",   u"Module",    u"Pirate", u"Titan"};
template <>
inline constexpr EnumTable kEnumTable<ArmorType> = MakeTable("ArmorType", kArmorTypeRows);

enum class AttackType : std::int32_t { Invalid = -1 };

inline constexpr std::u16string_view kAttackTypeRows[] = {
    u"ANTIVERYLIGHT", u"ANTILIGHT",   u"ANTIMEDIUM",     u"ANTIHEAVY", u"ANTIVERYHEAVY", u"ANTIMODULE",
    u"COMPOSITE",     u"CAPITALSHIP", u"CAPITALABILITY", u"TITAN",     u"CORVETTE"};
template <>
inline constexpr EnumTable kEnumTable<AttackType> = MakeTable("AttackType", kAttackTypeRows);

enum class PlayerRaceType : std::int32_t { Invalid = -1, Tech, Psi, Phase, Other };

inline constexpr EnumRow<PlayerRaceType> kPlayerRaceTypeRows[] = {{PlayerRaceType::Tech, u"Tech"},
                                                                  {PlayerRaceType::Psi, u"Psi"},
                                                                  {PlayerRaceType::Phase, u"Phase"},
                                                                  {PlayerRaceType::Other, u"Other"}};
inline constexpr auto kPlayerRaceTypeTexts = TextsInOrder<PlayerRaceType::Other>(kPlayerRaceTypeRows);
template <>
inline constexpr EnumTable kEnumTable<PlayerRaceType> = MakeTable("PlayerRaceType", kPlayerRaceTypeTexts);

enum class Resource : std::int32_t { Invalid = -1 };

inline constexpr std::u16string_view kResourceRows[] = {u"Credits", u"Metal", u"Crystal"};
template <>
inline constexpr EnumTable kEnumTable<Resource> = MakeTable("Resource", kResourceRows);

enum class UnitSoundType : std::int32_t { Invalid = -1 };

inline constexpr std::u16string_view kUnitSoundTypeRows[] = {
    u"ONATTACKORDERISSUED", u"ONCREATION", u"ONGENERALORDERISSUED", u"ONSELECTED", u"ONSTARTPHASEJUMP"};
template <>
inline constexpr EnumTable kEnumTable<UnitSoundType> = MakeTable("UnitSoundType", kUnitSoundTypeRows);

enum class WeaponBank : std::int32_t { Invalid = -1 };

inline constexpr std::u16string_view kWeaponBankRows[] = {u"FRONT", u"BACK", u"LEFT", u"RIGHT"};
template <>
inline constexpr EnumTable kEnumTable<WeaponBank> = MakeTable("WeaponBank", kWeaponBankRows);

enum class PlanetConnectionType : std::int32_t { Invalid = -1 };

inline constexpr std::u16string_view kPlanetConnectionTypeRows[] = {u"PhaseLane", u"Wormhole"};
template <>
inline constexpr EnumTable kEnumTable<PlanetConnectionType> = MakeTable("PlanetConnectionType",
                                                                        kPlanetConnectionTypeRows);

enum class TriggerEventType : std::int32_t { Invalid = -1 };

inline constexpr std::u16string_view kTriggerEventTypeRows[] = {
    u"ON_GAME_START",       u"ON_PLAYER_DEFEATED",         u"ON_RESEARCH_X_FINISHED_BY_A",
    u"ON_ENTITY_A_DEATH",   u"ON_ENTITY_A_GAINING_BUFF_X", u"ON_ENTITY_A_LOSING_BUFF_X",
    u"ON_ENTITYTYPE_DEATH", u"ON_ENTITYTYPE_CREATED"};
template <>
inline constexpr EnumTable kEnumTable<TriggerEventType> = MakeTable("TriggerEventType", kTriggerEventTypeRows);

enum class TriggerActionType : std::int32_t { Invalid = -1 };

inline constexpr std::u16string_view kTriggerActionTypeRows[] = {
    u"END_CURRENT_GAME",          u"MESSAGE_ALL_PLAYERS_X",      u"DEFEAT_PLAYER_A",
    u"ADD_BOUNTY_X_TO_PLAYER_A",  u"SEND_MESSAGE_X_TO_PLAYER_A", u"APPLY_BUFF_X_TO_TARGET_UNIT_A",
    u"ADD_X_XP_TO_TARGET_UNIT_A", u"APPLY_BUFF_X_TO_UNITTYPE_A", u"SPAWN_UNITTYPE_A_NEAR_B"};
template <>
inline constexpr EnumTable kEnumTable<TriggerActionType> = MakeTable("TriggerActionType", kTriggerActionTypeRows);

enum class WeaponClassType : std::int32_t { Invalid = -1 };

inline constexpr std::u16string_view kWeaponClassTypeRows[] = {
    u"AUTOCANNON", u"BEAM",        u"CAPITALABILITY", u"CHAOSBOLT", u"DART",         u"FLASHBEAM",         u"GAUSS",
    u"ION",        u"LASERTECH",   u"LASERPSI",       u"MISSILE",   u"PHASEMISSILE", u"PLANETBOMBARDMENT", u"PLASMA",
    u"PULSEGUN",   u"SPIRITBLADE", u"WAVE",           u"FLAK",      u"RAILGUN",      u"POINTDEFENSELASER", u"PULSEWAVE",
    u"PHASECANNON"};
template <>
inline constexpr EnumTable kEnumTable<WeaponClassType> = MakeTable("WeaponClassType", kWeaponClassTypeRows);

enum class BuffEffectAttachType : std::int32_t { Invalid = -1, Above, Aura, Center, Ability };

inline constexpr EnumRow<BuffEffectAttachType> kBuffEffectAttachTypeRows[] = {
    {BuffEffectAttachType::Above, u"Above"},
    {BuffEffectAttachType::Aura, u"Aura"},
    {BuffEffectAttachType::Center, u"Center"},
    {BuffEffectAttachType::Ability, u"Ability"}};
inline constexpr auto kBuffEffectAttachTypeTexts =
    TextsInOrder<BuffEffectAttachType::Ability>(kBuffEffectAttachTypeRows);
template <>
inline constexpr EnumTable kEnumTable<BuffEffectAttachType> = MakeTable("BuffEffectAttachType",
                                                                        kBuffEffectAttachTypeTexts);

enum class WeaponType : std::int32_t { Invalid = -1, Beam, Missile, Projectile };

inline constexpr EnumRow<WeaponType> kWeaponTypeRows[] = {
    {WeaponType::Beam, u"Beam"}, {WeaponType::Missile, u"Missile"}, {WeaponType::Projectile, u"Projectile"}};
inline constexpr auto kWeaponTypeTexts = TextsInOrder<WeaponType::Projectile>(kWeaponTypeRows);
template <>
inline constexpr EnumTable kEnumTable<WeaponType> = MakeTable("WeaponType", kWeaponTypeTexts);

enum class CriteriaType : std::int32_t { Invalid = -1, Research, StarBaseUpgradeLevel, None };

inline constexpr EnumRow<CriteriaType> kCriteriaTypeRows[] = {
    {CriteriaType::Research, u"Research"},
    {CriteriaType::StarBaseUpgradeLevel, u"StarBaseUpgradeLevel"},
    {CriteriaType::None, u"None"}};
inline constexpr auto kCriteriaTypeTexts = TextsInOrder<CriteriaType::None>(kCriteriaTypeRows);
template <>
inline constexpr EnumTable kEnumTable<CriteriaType> = MakeTable("CriteriaType", kCriteriaTypeTexts);

} // namespace Vorn
