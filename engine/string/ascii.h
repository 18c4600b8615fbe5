#pragma once

#include <algorithm>
#include <bit>
#include <cstddef>

#if defined(__SSE2__) || defined(_M_X64)
#include <emmintrin.h>
#define VORN_HAS_SSE2 1
#endif

namespace Vorn {

// What nearly every line goes through. The two conversions between bytes and code units work on plain text only and say
// false for anything else, with the output undefined then; the caller has a general road.

namespace Ascii {

inline bool NarrowEach(const char16_t* units, std::size_t count, char* out) {
    bool plain = true;
    for (std::size_t i = 0; i < count; ++i) {
        plain = plain && units[i] < 0x80 && units[i] != u'\n';
        out[i] = static_cast<char>(units[i]);
    }
    return plain;
}

} // namespace Ascii

#ifdef VORN_HAS_SSE2

// The last block of every loop overlaps the one before, so that nothing outside the text is read or written.
namespace Ascii {

inline constexpr std::size_t kUnits = 8;

inline const __m128i* Block(const void* place) {
    return static_cast<const __m128i*>(place);
}
inline __m128i* Block(void* place) {
    return static_cast<__m128i*>(place);
}

} // namespace Ascii

// Widens the plain text up to and with the next line feed: bytes from U+0001 to U+007F. Returns how many there were, or
// 0 if the line is anything else or reaches behind `count` bytes. Both sides need kLineBlock places behind that.
inline constexpr std::size_t kLineBlock = 16;

inline std::size_t WidenLine(const unsigned char* bytes, std::size_t count, char16_t* out) {
    const __m128i zero = _mm_setzero_si128();
    const __m128i lineFeed = _mm_set1_epi8('\n');
    for (std::size_t i = 0; i < count; i += kLineBlock) {
        const __m128i block = _mm_loadu_si128(Ascii::Block(bytes + i));
        _mm_storeu_si128(Ascii::Block(out + i), _mm_unpacklo_epi8(block, zero));
        _mm_storeu_si128(Ascii::Block(out + i + kLineBlock / 2), _mm_unpackhi_epi8(block, zero));
        const auto ends = static_cast<unsigned>(_mm_movemask_epi8(_mm_cmpeq_epi8(block, lineFeed)));
        // The bytes in front of the line feed, or all, where there is none.
        const unsigned own = ends != 0 ? (ends & (0 - ends)) - 1 : 0xFFFF;
        const auto odd = static_cast<unsigned>(_mm_movemask_epi8(_mm_or_si128(block, _mm_cmpeq_epi8(block, zero))));
        if ((odd & own) != 0) {
            return 0;
        }
        if (ends != 0) {
            const std::size_t length = i + static_cast<std::size_t>(std::countr_zero(ends)) + 1;
            return length <= count ? length : 0;
        }
    }
    return 0;
}

// Narrows units that are all below U+0080 and no line feed.
inline bool NarrowAscii(const char16_t* units, std::size_t count, char* out) {
    using namespace Ascii;
    if (count < kUnits) {
        return NarrowEach(units, count, out);
    }
    const __m128i lineFeed = _mm_set1_epi16(u'\n');
    __m128i high = _mm_setzero_si128();
    __m128i lineFeeds = high;
    for (std::size_t i = 0;; i = i + 2 * kUnits <= count ? i + kUnits : count - kUnits) {
        const __m128i block = _mm_loadu_si128(Block(units + i));
        high = _mm_or_si128(high, block);
        lineFeeds = _mm_or_si128(lineFeeds, _mm_cmpeq_epi16(block, lineFeed));
        _mm_storel_epi64(Block(out + i), _mm_packus_epi16(block, block));
        if (i + kUnits == count) {
            break;
        }
    }
    const __m128i odd = _mm_or_si128(_mm_and_si128(high, _mm_set1_epi16(static_cast<short>(0xFF80))), lineFeeds);
    return _mm_movemask_epi8(_mm_cmpeq_epi16(odd, _mm_setzero_si128())) == 0xFFFF;
}

// The first such unit from `begin` to `end`, or `end`.
inline const char16_t* FindUnit(const char16_t* begin, const char16_t* end, char16_t unit) {
    const __m128i wanted = _mm_set1_epi16(static_cast<short>(unit));
    for (; end - begin >= static_cast<std::ptrdiff_t>(Ascii::kUnits); begin += Ascii::kUnits) {
        const int found = _mm_movemask_epi8(_mm_cmpeq_epi16(_mm_loadu_si128(Ascii::Block(begin)), wanted));
        if (found != 0) {
            return begin + std::countr_zero(static_cast<unsigned>(found)) / 2;
        }
    }
    return std::find(begin, end, unit);
}

#else

inline constexpr std::size_t kLineBlock = 0;

inline std::size_t WidenLine(const unsigned char* bytes, std::size_t count, char16_t* out) {
    for (std::size_t i = 0; i < count && bytes[i] != 0 && bytes[i] < 0x80; ++i) {
        out[i] = bytes[i];
        if (bytes[i] == '\n') {
            return i + 1;
        }
    }
    return 0;
}

inline bool NarrowAscii(const char16_t* units, std::size_t count, char* out) {
    return Ascii::NarrowEach(units, count, out);
}

inline const char16_t* FindUnit(const char16_t* begin, const char16_t* end, char16_t unit) {
    return std::find(begin, end, unit);
}

#endif

} // namespace Vorn
