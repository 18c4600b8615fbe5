#pragma once

#include "engine/archive/record.h"

namespace Vorn {

enum class AutoRotateFacingType : std::int32_t { Invalid = -1 };

inline constexpr std::u16string_view kAutoRotateFacingTypeRows[] = {u"None", u"TowardsOrbitBody", u"AwayFromOrbitBody"};
template <>
inline constexpr EnumTable kEnumTable<AutoRotateFacingType> = MakeTable("AutoRotateFacingType",
                                                                        kAutoRotateFacingTypeRows);

// A slow turn of its own. The speed is in radians a second here and in degrees in every file.
struct IAutoRotateDef : Record {
    float angularSpeed = 0.0f;
    FixedString<256> rotateSoundName;
    AutoRotateFacingType rotateFacingType = AutoRotateFacingType::Invalid;
    Bool rotateConstantly;

    void Fields(FieldIo& io) override;
};

} // namespace Vorn
