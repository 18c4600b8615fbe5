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

inline constexpr std::u16string_view kInstantActionTriggerTypeRows[] = {
    u"OnAbilityUsed",     u"OnColonizeAbilityUsed", u"OnChance",      u"OnDamageTaken",
    u"OnDelay",           u"OnOwnerDeath",          u"OnCondition",   u"OnBuffFinish",
    u"OnHyperspaceEnter", u"OnHyperspaceExit",      u"OnWeaponFired", u"AlwaysPerform"};
template <>
inline constexpr EnumTable kEnumTable<InstantActionTriggerType> =
    MakeTable<InstantActionTriggerType::AlwaysPerform>("InstantActionTriggerType", kInstantActionTriggerTypeRows);

// The numbers are the rows of the table in buffinstantaction.cpp.
enum class BuffInstantActionType : std::int32_t { Invalid = -1 };

// One thing that a buff or an ability does at once: when, and what. Its type selects its fields; without a type or a
// trigger the check "false" fires and no fields of that selection follow.
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
