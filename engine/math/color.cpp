#include "engine/math/color.h"

namespace Vorn {

namespace {

std::uint32_t PackChannel(float channel) {
    if (channel >= 1.0f) {
        return 255;
    }
    // This form of the condition includes NaN, whose conversion to an integer is undefined.
    if (!(channel > 0.0f)) {
        return 0;
    }
    const float scaled = channel * 255.0f;
    return static_cast<std::uint32_t>(scaled + 0.5f);
}

float UnpackChannel(std::uint32_t packed, int shift) {
    constexpr float kScale = 0.003921569f;
    return static_cast<float>(packed >> shift & 0xFF) * kScale;
}

} // namespace

std::uint32_t Color::ToUInt() const {
    return PackChannel(alpha) << 24 | PackChannel(red) << 16 | PackChannel(green) << 8 | PackChannel(blue);
}

Color Color::FromUInt(std::uint32_t packed) {
    return {UnpackChannel(packed, 16), UnpackChannel(packed, 8), UnpackChannel(packed, 0), UnpackChannel(packed, 24)};
}

} // namespace Vorn
