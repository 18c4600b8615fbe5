#pragma once

#include <cstdint>

namespace Vorn {

// Edges in pixels, which may be in any order. Width and height wrap around in 32 bits.
struct Rectangle {
    std::int32_t left = 0;
    std::int32_t top = 0;
    std::int32_t right = 0;
    std::int32_t bottom = 0;

    std::int32_t Width() const { return Subtract(right, left); }
    std::int32_t Height() const { return Subtract(bottom, top); }

    static Rectangle FromExtent(std::int32_t x, std::int32_t y, std::int32_t width, std::int32_t height) {
        return {x, y, Add(x, width), Add(y, height)};
    }

    friend bool operator==(const Rectangle&, const Rectangle&) = default;

private:
    static std::int32_t Add(std::int32_t a, std::int32_t b) {
        return static_cast<std::int32_t>(static_cast<std::uint32_t>(a) + static_cast<std::uint32_t>(b));
    }
    static std::int32_t Subtract(std::int32_t a, std::int32_t b) {
        return static_cast<std::int32_t>(static_cast<std::uint32_t>(a) - static_cast<std::uint32_t>(b));
    }
};

} // namespace Vorn
