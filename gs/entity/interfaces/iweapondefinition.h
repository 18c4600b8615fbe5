#pragma once

#include "engine/archive/record.h"
#include "engine/datastructures/fixedarray.h"
#include "gs/entity/support/damageinfoenums.h"
#include "gs/entity/support/researchprerequisites.h"
#include "gs/entity/support/weaponeffectsdef.h"

namespace Vorn {

enum class WeaponFireConstaintType : std::int32_t { Invalid = -1, CanAlwaysFire, Research, StarBaseUpgradeLevel };

inline constexpr EnumRow<WeaponFireConstaintType> kWeaponFireConstaintTypeRows[] = {
    {WeaponFireConstaintType::CanAlwaysFire, u"CanAlwaysFire"},
    {WeaponFireConstaintType::Research, u"Research"},
    {WeaponFireConstaintType::StarBaseUpgradeLevel, u"StarBaseUpgradeLevel"}};
inline constexpr auto kWeaponFireConstaintTypeTexts =
    TextsInOrder<WeaponFireConstaintType::StarBaseUpgradeLevel>(kWeaponFireConstaintTypeRows);
template <>
inline constexpr EnumTable kEnumTable<WeaponFireConstaintType> = MakeTable("WeaponFireConstaintType",
                                                                           kWeaponFireConstaintTypeTexts);

inline constexpr int kWeaponBankCount = kEnumTable<WeaponBank>.rowCount;

// One weapon of an owner. Speed and duration that do not suit its type are reported and kept.
struct IWeaponDefinition : Record {
    WeaponType weaponType = WeaponType::Invalid;
    DamageInfoEnums damageEnums;
    FixedArray<float, kWeaponBankCount> damagePerBank;
    float range = 0.0f;
    float preBuffCooldownTime = 0.0f;
    Bool canFireAtFighter;
    Bool synchronizedTargeting;
    float pointStaggerDelay = 0.0f;
    float travelSpeed = 0.0f;
    float duration = 0.0f;
    WeaponFireConstaintType fireConstraintType = WeaponFireConstaintType::Invalid;
    ResearchPrerequisites researchPrerequisites;
    std::uint32_t requiredStarBaseWeaponLevel = 0;
    WeaponEffectsDef weaponEffects;

    void Fields(FieldIo& io) override;

private:
    void FireConstraintFields(FieldIo& io);
    void CheckValues() const;
};

} // namespace Vorn
