#pragma once

#include "gs/entity/interfaces/iweapondefinition.h"

namespace Vorn {

enum class FiringAlignmentType : std::int32_t { Invalid = -1, Default, BroadSide, TiltForward };

inline constexpr std::u16string_view kFiringAlignmentTypeRows[] = {u"Default", u"BroadSide", u"TiltForward"};
template <>
inline constexpr EnumTable kEnumTable<FiringAlignmentType> =
    MakeTable<FiringAlignmentType::TiltForward>("FiringAlignmentType", kFiringAlignmentTypeRows);

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
