#pragma once

#include "gs/entity/interfaces/iweapondefinition.h"

namespace Vorn {

enum class FiringAlignmentType : std::int32_t { Invalid = -1, Default, BroadSide, TiltForward };

inline constexpr EnumRow<FiringAlignmentType> kFiringAlignmentTypeRows[] = {
    {FiringAlignmentType::Default, u"Default"},
    {FiringAlignmentType::BroadSide, u"BroadSide"},
    {FiringAlignmentType::TiltForward, u"TiltForward"}};
inline constexpr auto kFiringAlignmentTypeTexts =
    TextsInOrder<FiringAlignmentType::TiltForward>(kFiringAlignmentTypeRows);
template <>
inline constexpr EnumTable kEnumTable<FiringAlignmentType> = MakeTable("FiringAlignmentType",
                                                                       kFiringAlignmentTypeTexts);

// The weapons of an entity and how it turns to fire them. The tilt is in radians here and in degrees in every file.
struct IWeaponOwnerDefinition : Record {
    FixedVector<IWeaponDefinition, 5> weapons;
    std::uint32_t weaponIndexForRange = 0;
    FiringAlignmentType firingAlignmentType = FiringAlignmentType::Invalid;
    float firingTiltAngle = 0.0f;
    FixedArray<std::uint32_t, kWeaponBankCount> targetCountPerBank;
    Bool canOnlyTargetStructures;

    void Fields(FieldIo& io) override;
};

} // namespace Vorn
