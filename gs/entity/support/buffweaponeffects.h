#pragma once

#include "gs/entity/support/buffeffectinfo.h"
#include "gs/entity/support/targetcentriceffectpointspawninfo.h"
#include "gs/entity/support/weaponeffectsdef.h"

namespace Vorn {

enum class WeaponEffectOriginType : std::int32_t { Invalid = -1, Targetter, Target };

inline constexpr EnumRow<WeaponEffectOriginType> kWeaponEffectOriginTypeRows[] = {
    {WeaponEffectOriginType::Targetter, u"Targetter"}, {WeaponEffectOriginType::Target, u"Target"}};
inline constexpr auto kWeaponEffectOriginTypeTexts =
    TextsInOrder<WeaponEffectOriginType::Target>(kWeaponEffectOriginTypeRows);
template <>
inline constexpr EnumTable kEnumTable<WeaponEffectOriginType> = MakeTable("WeaponEffectOriginType",
                                                                          kWeaponEffectOriginTypeTexts);

enum class ImpactOffsetType : std::int32_t { Invalid = -1 };

inline constexpr std::u16string_view kImpactOffsetTypeRows[] = {u"Center", u"CenterOffsetBySpatialRadius",
                                                                u"RandomMesh", u"RandomSpatialRadius"};
template <>
inline constexpr EnumTable kEnumTable<ImpactOffsetType> = MakeTable("ImpactOffsetType", kImpactOffsetTypeRows);

// A shot that is seen when an action goes from one entity to another. Without an origin the check "false" fires.
struct BuffWeaponEffects : Record {
    Bool hasWeaponEffects;
    WeaponEffectOriginType weaponEffectOriginType = WeaponEffectOriginType::Invalid;
    BuffEffectAttachInfo weaponEffectAttachInfo;
    TargetCentricEffectPointSpawnInfo targetCentricEffectPointSpawnInfo;
    ImpactOffsetType weaponEffectImpactOffsetType = ImpactOffsetType::Invalid;
    Bool canWeaponEffectHitHull;
    Bool canWeaponEffectHitShields;
    WeaponEffectsDef weaponEffectsDef;

    void Fields(FieldIo& io) override;

private:
    void OriginFields(FieldIo& io);
};

} // namespace Vorn
