#pragma once

#include "engine/core/inlining.h"

#include <bit>
#include <cstddef>
#include <cstdint>
#include <cstring>

namespace Vorn {

// Arithmetic on all digits of a short number at once. A word holds them as numbers from 0 to 9, one a byte or one a
// lane of 16 bits, the first digit of the text lowest.
namespace Digits {

inline constexpr std::uint64_t kEachByte = 0x0101010101010101;
inline constexpr std::uint64_t kTopBits = kEachByte * 0x80;

// 0x0102030405060708 becomes 0x0807060504030201.
constexpr std::uint64_t SwapBytes(std::uint64_t word) {
    std::uint64_t swapped = 0;
    for (int i = 0; i < 8; ++i, word >>= 8) {
        swapped = swapped << 8 | (word & 0xFF);
    }
    return swapped;
}

// Eight bytes, the first one lowest: "12345678" is 0x3837363534333231.
inline std::uint64_t WordAt(const char* bytes) {
    std::uint64_t word = 0;
    std::memcpy(&word, bytes, sizeof word);
    if constexpr (std::endian::native == std::endian::big) {
        word = SwapBytes(word);
    }
    return word;
}

// The digits of a text; what is no digit there is a byte above 9: "12.5" are the bytes 01 02 1E 05.
constexpr std::uint64_t FromText(std::uint64_t word) {
    return word ^ kEachByte * '0';
}

// The top bit of each byte above 9, up to the first one; bytes after that may have theirs set too. 0x051E0201 gives
// 0x00800000.
VORN_ALWAYS_INLINE constexpr std::uint64_t BeyondNine(std::uint64_t digits) {
    return (digits | (digits + kEachByte * (0x7F - 9))) & kTopBits;
}

// The number of bytes below the lowest one that has a bit set: 2 for 0x00800000.
constexpr std::size_t BytesBelow(std::uint64_t bits) {
    return static_cast<unsigned>(std::countr_zero(bits)) / 8;
}

// The number that eight digits spell: 194 for 0x0409010000000000, the digits 0 0 0 0 0 1 9 4. Each step adds up
// neighbours, in pairs, fours and then all, and finds the sum in the upper half of their lane.
VORN_ALWAYS_INLINE constexpr std::uint64_t Sum(std::uint64_t digits) {
    const std::uint64_t pairs = digits * (1 + (10 << 8)) >> 8 & 0x00FF00FF00FF00FF;
    const std::uint64_t fours = pairs * (1 + (100 << 16)) >> 16 & 0x0000FFFF0000FFFF;
    return fours * (1 + (std::uint64_t{10000} << 32)) >> 32;
}

// A text like "3.141592". With this the exclusive or of its bytes gives the digits, and a 0 for the point.
inline constexpr std::uint64_t kPointAndSix = kEachByte * '0' ^ std::uint64_t{'0' ^ '.'} << 8;

// Whether these digits came from such a text. The sum sets the top bit of a byte above 9, and at the place of the point
// no bit may be set.
constexpr bool ArePointAndSix(std::uint64_t digits) {
    constexpr std::uint64_t kPoint = 0xFF00;
    return ((digits | (digits + (kEachByte * (0x7F - 9) & ~kPoint))) & (kTopBits | kPoint)) == 0;
}

// 3141592 for the digits of "3.141592". The product takes the first digit to the place of the point.
VORN_ALWAYS_INLINE constexpr std::uint64_t Millionths(std::uint64_t digits) {
    return Sum(digits + (digits & 0xFF) * 0xFF);
}

inline constexpr std::uint64_t kEachLane = 0x0001000100010001;

// Whether a lane of 16 bits is above 9: its top bit is set, or the sum sets it. 0x0001000A00020003 has one.
constexpr bool HasLaneBeyondNine(std::uint64_t lanes) {
    return ((lanes | (lanes + kEachLane * (0x7FFF - 9))) & kEachLane << 15) != 0;
}

// The number that four digits spell: 194 for 0x0004000900010000. The top lane of the product is the sum of all lanes
// with their powers of ten.
constexpr std::uint64_t SumOfLanes(std::uint64_t lanes) {
    constexpr std::uint64_t kPowers = std::uint64_t{1000} << 48 | std::uint64_t{100} << 32 | 10 << 16 | 1;
    return lanes * kPowers >> 48;
}

} // namespace Digits

} // namespace Vorn
