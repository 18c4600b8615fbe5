#pragma once

#include <cstdint>

namespace Vorn {

// Channels nominally from 0 to 1.
struct Color {
    float red = 0.0f;
    float green = 0.0f;
    float blue = 0.0f;
    float alpha = 0.0f;

    // Packs to 8 bits a channel, rounded and clamped: alpha in the highest byte, then red, green and blue. A NaN
    // becomes 0.
    std::uint32_t ToUInt() const;

    static Color FromUInt(std::uint32_t packed);
};

} // namespace Vorn
