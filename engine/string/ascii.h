#pragma once

#include <cstddef>

#if defined(__SSE2__) || defined(_M_X64)
#include <emmintrin.h>
#define VORN_HAS_SSE2 1
#endif

namespace Vorn {

// The two conversions between bytes and code units that nearly every line takes. Both work on plain text only and say
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

// The last block of either loop overlaps the one before, so that nothing outside the text is read or written.
inline constexpr std::size_t kAsciiBlock = 8;

// Widens bytes that are all from U+0001 to U+007F.
inline bool WidenAscii(const unsigned char* bytes, std::size_t count, char16_t* out) {
    if (count < kAsciiBlock) {
        return Ascii::WidenEach(bytes, count, out);
    }
    const __m128i zero = _mm_setzero_si128();
    __m128i odd = zero;
    for (std::size_t i = 0;; i = i + 2 * kAsciiBlock <= count ? i + kAsciiBlock : count - kAsciiBlock) {
        const __m128i block = _mm_loadl_epi64(reinterpret_cast<const __m128i*>(bytes + i));
        const __m128i wide = _mm_unpacklo_epi8(block, zero);
        // Subtracting one turns 0 into 0xFFFF, whose upper bits show like those of a unit above 0x7F.
        odd = _mm_or_si128(odd, _mm_or_si128(wide, _mm_sub_epi16(wide, _mm_set1_epi16(1))));
        _mm_storeu_si128(reinterpret_cast<__m128i*>(out + i), wide);
        if (i + kAsciiBlock == count) {
            break;
        }
    }
    return _mm_movemask_epi8(_mm_cmpeq_epi16(_mm_and_si128(odd, _mm_set1_epi16(0x80)), zero)) == 0xFFFF;
}

// Narrows units that are all below U+0080 and no line feed.
inline bool NarrowAscii(const char16_t* units, std::size_t count, char* out) {
    if (count < kAsciiBlock) {
        return Ascii::NarrowEach(units, count, out);
    }
    const __m128i zero = _mm_setzero_si128();
    __m128i high = zero;
    __m128i lineFeeds = zero;
    for (std::size_t i = 0;; i = i + 2 * kAsciiBlock <= count ? i + kAsciiBlock : count - kAsciiBlock) {
        const __m128i block = _mm_loadu_si128(reinterpret_cast<const __m128i*>(units + i));
        high = _mm_or_si128(high, block);
        lineFeeds = _mm_or_si128(lineFeeds, _mm_cmpeq_epi16(block, _mm_set1_epi16(u'\n')));
        _mm_storel_epi64(reinterpret_cast<__m128i*>(out + i), _mm_packus_epi16(block, block));
        if (i + kAsciiBlock == count) {
            break;
        }
    }
    const __m128i highBits = _mm_and_si128(high, _mm_set1_epi16(static_cast<short>(0xFF80)));
    return _mm_movemask_epi8(_mm_cmpeq_epi16(_mm_or_si128(highBits, lineFeeds), zero)) == 0xFFFF;
}

#else

inline bool WidenAscii(const unsigned char* bytes, std::size_t count, char16_t* out) {
    return Ascii::WidenEach(bytes, count, out);
}

inline bool NarrowAscii(const char16_t* units, std::size_t count, char* out) {
    return Ascii::NarrowEach(units, count, out);
}

#endif

} // namespace Vorn
