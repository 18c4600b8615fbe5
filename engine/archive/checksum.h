#pragma once

#include "engine/string/ascii.h"

#include <array>
#include <bit>
#include <cstddef>
#include <cstdint>
#include <string_view>

namespace Vorn {

// Fletcher-32 over `count` 32-bit units, each as two little-endian 16-bit words, both sums starting at 0xFFFF.
std::uint32_t AddFletcher(const std::uint32_t* data, std::size_t count);

// AddFletcher of one unit, short enough for every float of a file. The first sum is that of the two words, the second
// one is the lower word and the first sum. Both carry their overflow into the lowest bit, which rotating does: the
// upper half of `a << 16 | b` plus the same with the words exchanged is a + b. 0x00010002 gives 0x00050003, the sums 2
// + (2 + 1) and 2 + 1. Only for 0 the result is not 0 but 0xFFFF in both words.
inline std::uint32_t AddFletcher(std::uint32_t unit) {
    const std::uint32_t first = unit + std::rotl(unit, 16);
    const std::uint32_t words = (first & 0xFFFF0000) | (unit & 0xFFFF);
    const std::uint32_t second = words + std::rotl(words, 16);
    return unit != 0 ? (second & 0xFFFF0000) | first >> 16 : 0xFFFFFFFF;
}

#ifdef VORN_HAS_SSE2

// AddFletcher of four units, each in its place.
VORN_ALWAYS_INLINE __m128i AddFletcherToEach(__m128i units) {
    const auto swapWords = [](__m128i pairs) { return _mm_shufflehi_epi16(_mm_shufflelo_epi16(pairs, 0xB1), 0xB1); };
    const __m128i upper = _mm_set1_epi32(static_cast<int>(0xFFFF0000));
    const __m128i first = _mm_add_epi32(units, swapWords(units));
    const __m128i words = _mm_or_si128(_mm_and_si128(upper, first), _mm_andnot_si128(upper, units));
    const __m128i second = _mm_add_epi32(words, swapWords(words));
    const __m128i both = _mm_or_si128(_mm_and_si128(upper, second), _mm_srli_epi32(first, 16));
    const __m128i zeros = _mm_cmpeq_epi32(units, _mm_setzero_si128());
    return _mm_or_si128(both, zeros);
}

// The sum of four units: 10 for 1, 2, 3 and 4, by way of 4, 6, 4 and 6.
VORN_ALWAYS_INLINE std::uint32_t SumOfLanes(__m128i units) {
    const __m128i halves = _mm_add_epi32(units, _mm_shuffle_epi32(units, 0x4E));
    return static_cast<std::uint32_t>(_mm_cvtsi128_si32(_mm_add_epi32(halves, _mm_shuffle_epi32(halves, 0xB1))));
}

#endif

inline std::uint32_t FloatCheckSum(float value) {
    return AddFletcher(std::bit_cast<std::uint32_t>(value));
}

// The sum of the check sums of several floats.
template <std::size_t N>
VORN_ALWAYS_INLINE std::uint32_t CheckSumOf(const std::array<float, N>& values) {
    std::uint32_t sum = 0;
    std::size_t i = 0;
#ifdef VORN_HAS_SSE2
    if constexpr (N > 1) {
        __m128i sums = _mm_setzero_si128();
        for (; i < N; i += 4) {
            const auto at = [&](std::size_t k) { return k < N ? values[k] : 0.0f; };
            const __m128i units = _mm_castps_si128(_mm_setr_ps(at(i), at(i + 1), at(i + 2), at(i + 3)));
            sums = _mm_add_epi32(sums, AddFletcherToEach(units));
        }
        // A short group is filled up with 0, whose check sum is -1.
        sum = SumOfLanes(sums) + static_cast<std::uint32_t>(i - N);
    }
#endif
    for (; i < N; ++i) {
        sum += FloatCheckSum(values[i]);
    }
    return sum;
}

// The plain sum of whole numbers.
template <std::size_t N>
VORN_ALWAYS_INLINE std::uint32_t CheckSumOf(const std::array<std::int32_t, N>& values) {
    std::uint32_t sum = 0;
    for (const std::int32_t value : values) {
        sum += static_cast<std::uint32_t>(value);
    }
    return sum;
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
