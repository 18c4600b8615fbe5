#include "engine/string/numbertext.h"

#include <algorithm>
#include <array>
#include <bit>
#include <charconv>
#include <cmath>
#include <cstring>

namespace Vorn {

namespace {

constexpr auto kDigitPairs = [] {
    std::array<char, 200> pairs{};
    for (std::size_t i = 0; i < 100; ++i) {
        pairs[2 * i] = static_cast<char>('0' + i / 10);
        pairs[2 * i + 1] = static_cast<char>('0' + i % 10);
    }
    return pairs;
}();

void PutPair(char* out, std::uint32_t value) {
    std::memcpy(out, &kDigitPairs[2 * static_cast<std::size_t>(value)], 2);
}

char* PutUint(char* out, std::uint32_t value) {
    if (value >= 10000) {
        out = PutUint(out, value / 10000);
        PutPair(out, value / 100 % 100);
        PutPair(out + 2, value % 100);
        return out + 4;
    }
    if (value >= 100) {
        out = PutUint(out, value / 100);
        PutPair(out, value % 100);
        return out + 2;
    }
    if (value >= 10) {
        PutPair(out, value);
        return out + 2;
    }
    *out = static_cast<char>('0' + value);
    return out + 1;
}

char* PutUint64(char* out, std::uint64_t value) {
    if (value <= UINT32_MAX) {
        return PutUint(out, static_cast<std::uint32_t>(value));
    }
    constexpr std::uint64_t kNineDigits = 1000000000;
    out = PutUint64(out, value / kNineDigits);
    auto rest = static_cast<std::uint32_t>(value % kNineDigits);
    for (char* cursor = out + 9; cursor != out; rest /= 10) {
        *--cursor = static_cast<char>('0' + rest % 10);
    }
    return out + 9;
}

char* PutNotFinite(char* out, double value) {
    std::memcpy(out, std::isnan(value) ? "nan" : "inf", 3);
    return out + 3;
}

char* PutSixPlaces(char* out, std::uint32_t fraction) {
    out[0] = '.';
    PutPair(out + 1, fraction / 10000);
    PutPair(out + 3, fraction / 100 % 100);
    PutPair(out + 5, fraction % 100);
    return out + 7;
}

} // namespace

char* PutInt(char* out, std::int32_t value) {
    auto magnitude = static_cast<std::uint32_t>(value);
    if (value < 0) {
        *out++ = '-';
        magnitude = 0 - magnitude;
    }
    return PutUint(out, magnitude);
}

char* PutInt64(char* out, std::int64_t value) {
    auto magnitude = static_cast<std::uint64_t>(value);
    if (value < 0) {
        *out++ = '-';
        magnitude = 0 - magnitude;
    }
    return PutUint64(out, magnitude);
}

char* PutHex64(char* out, std::uint64_t value) {
    const int digits = std::max(1, (static_cast<int>(std::bit_width(value)) + 3) / 4);
    for (char* cursor = out + digits; cursor != out; value >>= 4) {
        *--cursor = "0123456789abcdef"[value & 15];
    }
    return out + digits;
}

char* PutHex(char* out, std::uint32_t value) {
    return PutHex64(out, value);
}

char* PutFixed(char* out, double value, int places) {
    if (std::signbit(value)) {
        *out++ = '-';
    }
    if (!std::isfinite(value)) {
        return PutNotFinite(out, value);
    }
    return std::to_chars(out, out + kNumberTextCapacity - 1, std::fabs(value), std::chars_format::fixed, places).ptr;
}

char* PutFixed6(char* out, float value) {
    constexpr std::uint32_t kMillion = 1000000;
    const auto bits = std::bit_cast<std::uint32_t>(value);
    const int exponent = static_cast<int>(bits >> 23 & 0xFF);
    const std::uint64_t mantissa = (bits & 0x7FFFFF) | (exponent != 0 ? 0x800000U : 0U);
    const int shift = 150 - std::max(exponent, 1);
    if (exponent == 0xFF || shift < -40) {
        return PutFixed(out, static_cast<double>(value), 6);
    }
    if (bits >> 31 != 0) {
        *out++ = '-';
    }
    if (shift <= 0) {
        return PutSixPlaces(PutUint64(out, mantissa << -shift), 0);
    }
    // In millionths the mantissa stays below 2^44, so from a shift of 45 on less than half a millionth is left.
    std::uint64_t millionths = 0;
    if (shift < 45) {
        const std::uint64_t product = mantissa * kMillion;
        const std::uint64_t odd = product >> shift & 1;
        millionths = (product + (std::uint64_t{1} << (shift - 1)) - 1 + odd) >> shift;
    }
    out = PutUint(out, static_cast<std::uint32_t>(millionths / kMillion));
    return PutSixPlaces(out, static_cast<std::uint32_t>(millionths % kMillion));
}

} // namespace Vorn
