#pragma once

#include "engine/core/inlining.h"
#include "engine/core/realtext.h"

#include <array>
#include <bit>
#include <cstddef>
#include <cstdint>
#include <cstring>

namespace Vorn {

// Each Put function writes a number's text without terminator and returns the end of what it wrote.
char* PutInt(char* out, std::int32_t value);
char* PutInt64(char* out, std::int64_t value);

// Lower-case digits, no prefix, no leading zeros.
char* PutHex(char* out, std::uint32_t value);
char* PutHex64(char* out, std::uint64_t value);

// PutFixed with six places, for the floats that content files are made of.
char* PutFixed6(char* out, float value);

// The fast path for most numbers. Some bytes after the text are overwritten.
namespace PlainNumber {

inline constexpr std::uint32_t kThousand = 1000;
inline constexpr std::uint32_t kMillion = 1000000;

// The texts of a number below 1000.
struct Text {
    // Three digits.
    char padded[4];
    // No more digits than needed, and in the fourth place their number.
    char digits[4];
};

inline constexpr auto kTexts = [] {
    std::array<Text, kThousand> texts{};
    for (std::size_t i = 0; i < kThousand; ++i) {
        Text& text = texts[i];
        const std::size_t skipped = i < 10 ? 2 : i < 100 ? 1 : 0;
        for (std::size_t k = 3, rest = i; k-- > 0; rest /= 10) {
            text.padded[k] = static_cast<char>('0' + rest % 10);
        }
        for (std::size_t k = skipped; k < 3; ++k) {
            text.digits[k - skipped] = text.padded[k];
        }
        text.digits[3] = static_cast<char>(3 - skipped);
    }
    return texts;
}();

VORN_ALWAYS_INLINE char* PutThreeDigits(char* out, std::uint32_t value) {
    std::memcpy(out, kTexts[value].padded, 4);
    return out + 3;
}

// A number below a million.
VORN_ALWAYS_INLINE char* PutUint(char* out, std::uint32_t value) {
    const std::uint32_t thousands = value / kThousand;
    const Text& first = kTexts[value < kThousand ? value : thousands];
    std::memcpy(out, first.digits, 4);
    out += first.digits[3];
    return value < kThousand ? out : PutThreeDigits(out, value - thousands * kThousand);
}

// Puts the sign if there is one.
VORN_ALWAYS_INLINE char* PutSign(char* out, bool negative) {
    *out = '-';
    return out + (negative ? 1 : 0);
}

VORN_ALWAYS_INLINE bool FitsInt(std::int32_t value) {
    constexpr auto kLimit = static_cast<std::int32_t>(kMillion);
    return value > -kLimit && value < kLimit;
}

VORN_ALWAYS_INLINE char* PutInt(char* out, std::int32_t value) {
    return PutUint(PutSign(out, value < 0), static_cast<std::uint32_t>(value < 0 ? -value : value));
}

// The bits without the sign: 0x3F800000 for 1 and for -1.
constexpr std::uint32_t MagnitudeBits(float value) {
    return std::bit_cast<std::uint32_t>(value) & 0x7FFFFFFF;
}

// The bits of positive floats have the same order as the floats, and infinity and NaN are above all.
VORN_ALWAYS_INLINE bool FitsFixed6(float value) {
    return MagnitudeBits(value) < MagnitudeBits(static_cast<float>(kMillion));
}

// A number from 0 to 2^51 rounded to the nearest whole one, ties to even: 2 for 2.5. From 2^52 on doubles are whole
// numbers, so that adding 2^52 rounds, and leaves the result in the low bits.
constexpr std::uint64_t Rounded(double value) {
    constexpr double kWhole = 4503599627370496.0;
    return std::bit_cast<std::uint64_t>(value + kWhole) - std::bit_cast<std::uint64_t>(kWhole);
}

// The product is exact, a number of 24 bits by one of 20.
VORN_ALWAYS_INLINE char* PutFixed6(char* out, float value) {
    const auto magnitude = static_cast<double>(std::bit_cast<float>(MagnitudeBits(value)));
    const std::uint64_t millionths = Rounded(magnitude * static_cast<double>(kMillion));
    const auto units = static_cast<std::uint32_t>(millionths / kMillion);
    const auto decimals = static_cast<std::uint32_t>(millionths - std::uint64_t{units} * kMillion);
    out = PutUint(PutSign(out, std::bit_cast<std::uint32_t>(value) >> 31 != 0), units);
    *out++ = '.';
    const std::uint32_t thousandths = decimals / kThousand;
    return PutThreeDigits(PutThreeDigits(out, thousandths), decimals - thousandths * kThousand);
}

} // namespace PlainNumber

} // namespace Vorn
