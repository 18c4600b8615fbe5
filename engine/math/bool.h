#pragma once

#include <cstdint>

namespace Vorn {

// A stored boolean: one byte that is false as 0 and true as anything else, and that keeps the value it was read with.
class Bool {
public:
    constexpr Bool() = default;
    constexpr Bool(bool value) : byte(value ? 1 : 0) {}

    constexpr operator bool() const { return byte != 0; }

    static constexpr Bool FromByte(std::uint8_t byte) {
        Bool value;
        value.byte = byte;
        return value;
    }
    constexpr std::uint8_t Byte() const { return byte; }

private:
    std::uint8_t byte = 0;
};

} // namespace Vorn
