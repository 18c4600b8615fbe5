#pragma once

#include <algorithm>
#include <bit>
#include <cstddef>
#include <cstring>
#include <string_view>

#if defined(__SSE2__) || defined(_M_X64)
#include <emmintrin.h>
#define VORN_HAS_SSE2 1
#endif

namespace Vorn {

// What nearly every line goes through. The conversions between bytes and code units work on plain text only and say so
// of anything else, with the output undefined then; the caller has a general road.

namespace Ascii {

inline bool EqualsEach(const char* bytes, std::u16string_view text) {
    return std::equal(text.begin(), text.end(), bytes,
                      [](char16_t unit, char byte) { return unit == static_cast<unsigned char>(byte); });
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

inline constexpr std::size_t kUnits = 8;

inline const __m128i* Block(const void* place) {
    return static_cast<const __m128i*>(place);
}
inline __m128i* Block(void* place) {
    return static_cast<__m128i*>(place);
}

} // namespace Ascii

// Widens plain text, bytes from U+0001 to U+007F but no line feed, up to and with `end`. Returns how many bytes that
// were, or 0 if there is anything else or no end within `count` bytes. Both sides need kWidenBlock places behind those.
inline constexpr std::size_t kWidenBlock = 16;

inline std::size_t WidenUntil(const unsigned char* bytes, std::size_t count, char16_t* out, char end) {
    const __m128i zero = _mm_setzero_si128();
    const __m128i lineFeed = _mm_set1_epi8('\n');
    for (std::size_t i = 0; i < count; i += kWidenBlock) {
        const __m128i block = _mm_loadu_si128(Ascii::Block(bytes + i));
        _mm_storeu_si128(Ascii::Block(out + i), _mm_unpacklo_epi8(block, zero));
        _mm_storeu_si128(Ascii::Block(out + i + kWidenBlock / 2), _mm_unpackhi_epi8(block, zero));
        const __m128i noText = _mm_or_si128(_mm_cmpeq_epi8(block, lineFeed), _mm_cmpeq_epi8(block, zero));
        const auto odd = static_cast<unsigned>(_mm_movemask_epi8(_mm_or_si128(block, noText)));
        const auto ends = static_cast<unsigned>(_mm_movemask_epi8(_mm_cmpeq_epi8(block, _mm_set1_epi8(end))));
        // What stands in front of the end; everything, where there is none.
        if ((odd & ((ends & (0 - ends)) - 1)) != 0) {
            return 0;
        }
        if (ends != 0) {
            const std::size_t length = i + static_cast<std::size_t>(std::countr_zero(ends)) + 1;
            return length <= count ? length : 0;
        }
    }
    return 0;
}

// Whether the bytes are those of a text; kUnits bytes have to be readable where the text is shorter.
inline bool EqualsAscii(const char* bytes, std::u16string_view text) {
    using namespace Ascii;
    const std::size_t count = text.size();
    const __m128i zero = _mm_setzero_si128();
    const auto compare = [&](std::size_t i, __m128i units) {
        const __m128i wide = _mm_unpacklo_epi8(_mm_loadl_epi64(Block(bytes + i)), zero);
        return _mm_movemask_epi8(_mm_cmpeq_epi16(wide, units));
    };
    if (count >= kUnits) {
        int equal = compare(count - kUnits, _mm_loadu_si128(Block(text.data() + count - kUnits)));
        for (std::size_t i = 0; i + kUnits < count; i += kUnits) {
            equal &= compare(i, _mm_loadu_si128(Block(text.data() + i)));
        }
        return equal == 0xFFFF;
    }
    constexpr std::size_t kHalf = kUnits / 2;
    if (count >= kHalf) {
        const int equal = compare(0, _mm_loadl_epi64(Block(text.data()))) &
                          compare(count - kHalf, _mm_loadl_epi64(Block(text.data() + count - kHalf)));
        return (equal & 0xFF) == 0xFF;
    }
    return EqualsEach(bytes, text);
}

// Narrows units that are all below U+0080 and no line feed.
inline bool NarrowAscii(const char16_t* units, std::size_t count, char* out) {
    using namespace Ascii;
    constexpr std::size_t kHalf = kUnits / 2;
    if (count < kHalf) {
        return NarrowEach(units, count, out);
    }
    __m128i high = _mm_setzero_si128();
    __m128i lineFeeds = high;
    const auto narrow = [&](__m128i block) {
        high = _mm_or_si128(high, block);
        lineFeeds = _mm_or_si128(lineFeeds, _mm_cmpeq_epi16(block, _mm_set1_epi16(u'\n')));
        return _mm_packus_epi16(block, block);
    };
    if (count < kUnits) {
        for (const std::size_t i : {std::size_t{0}, count - kHalf}) {
            const int bytes = _mm_cvtsi128_si32(narrow(_mm_loadl_epi64(Block(units + i))));
            std::memcpy(out + i, &bytes, sizeof bytes);
        }
    } else {
        for (std::size_t i = 0; i + kUnits < count; i += kUnits) {
            _mm_storel_epi64(Block(out + i), narrow(_mm_loadu_si128(Block(units + i))));
        }
        const std::size_t last = count - kUnits;
        _mm_storel_epi64(Block(out + last), narrow(_mm_loadu_si128(Block(units + last))));
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

inline constexpr std::size_t kWidenBlock = 0;

inline std::size_t WidenUntil(const unsigned char* bytes, std::size_t count, char16_t* out, char end) {
    for (std::size_t i = 0; i < count && bytes[i] != 0 && bytes[i] < 0x80; ++i) {
        out[i] = bytes[i];
        if (bytes[i] == static_cast<unsigned char>(end)) {
            return i + 1;
        }
        if (bytes[i] == '\n') {
            return 0;
        }
    }
    return 0;
}

inline bool EqualsAscii(const char* bytes, std::u16string_view text) {
    return Ascii::EqualsEach(bytes, text);
}

inline bool NarrowAscii(const char16_t* units, std::size_t count, char* out) {
    return Ascii::NarrowEach(units, count, out);
}

inline const char16_t* FindUnit(const char16_t* begin, const char16_t* end, char16_t unit) {
    return std::find(begin, end, unit);
}

#endif

} // namespace Vorn
