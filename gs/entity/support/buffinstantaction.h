#pragma once

#include "engine/datastructures/ondemand.h"
#include "gs/entity/support/buffactioncondition.h"
#include "gs/entity/support/buffactionvalues.h"

namespace Vorn {

enum class InstantActionTriggerType : std::int32_t {
    Invalid = -1,
    OnAbilityUsed,
    OnColonizeAbilityUsed,
    OnChance,
    OnDamageTaken,
    OnDelay,
    OnOwnerDeath,
    OnCondition,
    OnBuffFinish,
    OnHyperspaceEnter,
    OnHyperspaceExit,
    OnWeaponFired,
    AlwaysPerform
};

inline constexpr EnumRow<InstantActionTriggerType> kInstantActionTriggerTypeRows[] = {
    {InstantActionTriggerType::OnAbilityUsed, u"OnAbilityUsed"},
    {InstantActionTriggerType::OnColonizeAbilityUsed, u"OnColonizeAbilityUsed"},
    {InstantActionTriggerType::OnChance, u"OnChance"},
    {InstantActionTriggerType::OnDamageTaken, u"OnDamageTaken"},
    {InstantActionTriggerType::OnDelay, u"OnDelay"},
    {InstantActionTriggerType::OnOwnerDeath, u"OnOwnerDeath"},
    {InstantActionTriggerType::OnCondition, u"OnCondition"},
    {InstantActionTriggerType::OnBuffFinish, u"OnBuffFinish"},
    {InstantActionTriggerType::OnHyperspaceEnter, u"OnHyperspaceEnter"},
    {InstantActionTriggerType::OnHyperspaceExit, u"OnHyperspaceExit"},
    {InstantActionTriggerType::OnWeaponFired, u"OnWeaponFired"},
    {InstantActionTriggerType::AlwaysPerform, u"AlwaysPerform"}};
inline constexpr auto kInstantActionTriggerTypeTexts =
    TextsInOrder<InstantActionTriggerType::AlwaysPerform>(kInstantActionTriggerTypeRows);
template <>
inline constexpr EnumTable kEnumTable<InstantActionTriggerType> = MakeTable("InstantActionTriggerType",
                                                                            kInstantActionTriggerTypeTexts);

// The numbers are the rows of the table in buffinstantaction.cpp.
enum class BuffInstantActionType : std::int32_t { Invalid = -1 };

// One action of a buff or an ability: when it happens, and what it does. Its type selects its fields; without a type or
// a trigger the check "false" fires and no fields of that selection follow.
struct BuffInstantAction : Record {
    BuffInstantActionType buffInstantActionType = BuffInstantActionType::Invalid;
    InstantActionTriggerType instantActionTriggerType = InstantActionTriggerType::Invalid;
    BuffLevelFloatTable buffApplyChance;
    float delayTime = 0.0f;
    OnDemand<BuffActionCondition> condition;
    DynamicVector<WeaponClassType> weaponClassesForWeaponPassive;
    BuffLevelFloatTable passiveWeaponEffectChance;
    OnDemand<BuffActionValues> values;

    void Fields(FieldIo& io) override;

    // Whether the action is aimed at one chosen target.
    bool NeedsSingleTarget() const;

private:
    void TriggerFields(FieldIo& io);
};

} // namespace Vorn
