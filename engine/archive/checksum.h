#pragma once

#include <bit>
#include <cstddef>
#include <cstdint>
#include <string_view>

namespace Vorn {

// Fletcher-32 over `count` 32-bit units, each as two little-endian 16-bit words, both sums starting at 0xFFFF.
std::uint32_t AddFletcher(const std::uint32_t* data, std::size_t count);

// AddFletcher of one unit, short enough for every float of a file.
inline std::uint32_t AddFletcher(std::uint32_t unit) {
    const auto fold = [](std::uint32_t sum) { return (sum & 0xFFFF) + (sum >> 16); };
    std::uint32_t first = 0xFFFF + (unit & 0xFFFF);
    std::uint32_t second = 0xFFFF + first;
    first += unit >> 16;
    second += first;
    return fold(fold(second)) << 16 | fold(fold(first));
}

inline std::uint32_t FloatCheckSum(float value) {
    return AddFletcher(std::bit_cast<std::uint32_t>(value));
}

inline std::uint32_t DoubleCheckSum(double value) {
    const auto bits = std::bit_cast<std::uint64_t>(value);
    const std::uint32_t units[] = {static_cast<std::uint32_t>(bits), static_cast<std::uint32_t>(bits >> 32)};
    return AddFletcher(units, 2);
}

// The plain sum of the code units.
inline std::uint32_t StringCheckSum(std::u16string_view text) {
    std::uint32_t sum = 0;
    for (const char16_t unit : text) {
        sum += unit;
    }
    return sum;
}

} // namespace Vorn
