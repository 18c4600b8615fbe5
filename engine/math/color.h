#pragma once

#include <cstdint>

namespace Vorn {

// Channels nominally from 0 to 1.
struct Color {
    float red = 0.0f;
    float green = 0.0f;
    float blue = 0.0f;
    float alpha = 0.0f;

    // Packs to 8 bits a channel, rounded and clamped: alpha on top, then red, green, blue. Not a number gives 0.
    std::uint32_t ToUInt() const;

    static Color FromUInt(std::uint32_t packed);
};

} // namespace Vorn
