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

inline bool WidenEach(const unsigned char* bytes, std::size_t count, char16_t* out) {
    unsigned all = 0;
    bool hasNull = false;
    for (std::size_t i = 0; i < count; ++i) {
        all |= bytes[i];
        hasNull = hasNull || bytes[i] == 0;
        out[i] = bytes[i];
    }
    return all < 0x80 && !hasNull;
}

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

inline constexpr std::size_t kBytes = 16;
inline constexpr std::size_t kUnits = 8;

inline const __m128i* Block(const void* place) {
    return static_cast<const __m128i*>(place);
}
inline __m128i* Block(void* place) {
    return static_cast<__m128i*>(place);
}

// Whether eight bytes of plain text were widened; the lower half of a block.
inline bool WidenHalf(const unsigned char* bytes, char16_t* out) {
    const __m128i wide = _mm_unpacklo_epi8(_mm_loadl_epi64(Block(bytes)), _mm_setzero_si128());
    _mm_storeu_si128(Block(out), wide);
    // Subtracting one turns 0 into 0xFFFF, whose upper bits show like those of a unit above 0x7F.
    const __m128i odd = _mm_or_si128(wide, _mm_sub_epi16(wide, _mm_set1_epi16(1)));
    return _mm_movemask_epi8(_mm_slli_epi16(odd, 8)) == 0;
}

} // namespace Ascii

// Widens bytes that are all from U+0001 to U+007F.
inline bool WidenAscii(const unsigned char* bytes, std::size_t count, char16_t* out) {
    using namespace Ascii;
    if (count < kBytes) {
        return count < kUnits
                   ? WidenEach(bytes, count, out)
                   : static_cast<bool>(WidenHalf(bytes, out) & WidenHalf(bytes + count - kUnits, out + count - kUnits));
    }
    const __m128i zero = _mm_setzero_si128();
    __m128i highest = zero;
    __m128i lowest = _mm_set1_epi8(1);
    for (std::size_t i = 0;; i = i + 2 * kBytes <= count ? i + kBytes : count - kBytes) {
        const __m128i block = _mm_loadu_si128(Block(bytes + i));
        highest = _mm_or_si128(highest, block);
        lowest = _mm_min_epu8(lowest, block);
        _mm_storeu_si128(Block(out + i), _mm_unpacklo_epi8(block, zero));
        _mm_storeu_si128(Block(out + i + kUnits), _mm_unpackhi_epi8(block, zero));
        if (i + kBytes == count) {
            break;
        }
    }
    return _mm_movemask_epi8(_mm_or_si128(highest, _mm_cmpeq_epi8(lowest, zero))) == 0;
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

inline bool WidenAscii(const unsigned char* bytes, std::size_t count, char16_t* out) {
    return Ascii::WidenEach(bytes, count, out);
}

inline bool NarrowAscii(const char16_t* units, std::size_t count, char* out) {
    return Ascii::NarrowEach(units, count, out);
}

inline const char16_t* FindUnit(const char16_t* begin, const char16_t* end, char16_t unit) {
    return std::find(begin, end, unit);
}

#endif

} // namespace Vorn
