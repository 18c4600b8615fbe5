#pragma once

#include "engine/core/inlining.h"

#include <algorithm>
#include <bit>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <string_view>

#if defined(__x86_64__) || defined(_M_X64)
#include <emmintrin.h>
#define VORN_HAS_SSE2 1
#endif

namespace Vorn {

// The fast path of nearly every line: bytes are compared with code units and converted, eight or sixteen at a time. The
// conversions handle plain text alone. They return false or 0 for any other, with an undefined output, and the caller
// has a slow path.

namespace Ascii {

// The slow twins of the functions below, for short texts and other platforms.
inline bool EqualsEach(const char* bytes, std::u16string_view text) {
    return std::equal(text.begin(), text.end(), bytes,
                      [](char16_t unit, char byte) { return unit == static_cast<unsigned char>(byte); });
}

inline bool NarrowEach(const char16_t* units, std::size_t count, char* out) {
    bool plain = true;
    for (std::size_t i = 0; i < count; ++i) {
        plain = plain && units[i] < 0x80 && units[i] >= u' ';
        out[i] = static_cast<char>(units[i]);
    }
    return plain;
}

} // namespace Ascii

#ifdef VORN_HAS_SSE2

// The last block of every loop overlaps the one before, so that nothing outside the text is read or written. A text
// shorter than a block is handled as two halves that overlap: "abcde" as "abcd" and "bcde".
namespace Ascii {

inline constexpr std::size_t kUnits = 8;

// The bits below the lowest one that is set, or all if none is: 0b0011 for 0b10100.
constexpr unsigned BitsBelowLowest(unsigned bits) {
    return (bits & (0 - bits)) - 1;
}

inline const __m128i* Block(const void* place) {
    return static_cast<const __m128i*>(place);
}
inline __m128i* Block(void* place) {
    return static_cast<__m128i*>(place);
}

template <class Word>
Word Load(const void* place) {
    Word word;
    std::memcpy(&word, place, sizeof word);
    return word;
}

// The first and the last units of a text side by side, four and four for an `Ends` of 64 bits, else two and two:
// "abcdbcde" of "abcde".
template <class Ends>
VORN_ALWAYS_INLINE __m128i LoadEnds(const char16_t* units, std::size_t count) {
    if constexpr (sizeof(Ends) == 8) {
        return _mm_unpacklo_epi64(_mm_loadl_epi64(Block(units)), _mm_loadl_epi64(Block(units + count - 4)));
    } else {
        return _mm_unpacklo_epi32(_mm_cvtsi32_si128(Load<int>(units)), _mm_cvtsi32_si128(Load<int>(units + count - 2)));
    }
}

// The same units as bytes, the first one lowest: 0x65646362'64636261. A unit above 255 becomes 0xFF.
template <class Ends>
VORN_ALWAYS_INLINE Ends NarrowEnds(__m128i units) {
    return static_cast<Ends>(_mm_cvtsi128_si64(_mm_packus_epi16(units, units)));
}

// Whether a text of `count` units, between the sizes of `Half` and `Ends`, equals the bytes.
template <class Ends, class Half>
VORN_ALWAYS_INLINE bool EqualsEnds(const char* bytes, const char16_t* units, std::size_t count) {
    const Ends ends = Load<Half>(bytes) | Ends{Load<Half>(bytes + count - sizeof(Half))} << (8 * sizeof(Half));
    return ends == NarrowEnds<Ends>(LoadEnds<Ends>(units, count));
}

// Sets each byte that is plain text, as NarrowEnds makes them, to 0xFF and all others to 0. Seen as signed numbers,
// control characters and bytes from 0x80 on are below the blank: "a\tb" gives FF 00 FF.
VORN_ALWAYS_INLINE __m128i ArePlain(__m128i bytes) {
    return _mm_cmpgt_epi8(bytes, _mm_set1_epi8(' ' - 1));
}

// Writes a text of such a size as bytes. False if some unit was not plain.
template <class Ends, class Half>
VORN_ALWAYS_INLINE bool PutEnds(const char16_t* units, std::size_t count, char* out) {
    const __m128i loaded = LoadEnds<Ends>(units, count);
    const auto ends = NarrowEnds<Ends>(loaded);
    const auto first = static_cast<Half>(ends);
    const auto last = static_cast<Half>(ends >> (8 * sizeof(Half)));
    std::memcpy(out, &first, sizeof first);
    std::memcpy(out + count - sizeof last, &last, sizeof last);
    constexpr int kMask = (1 << sizeof(Ends)) - 1;
    return (_mm_movemask_epi8(ArePlain(_mm_packus_epi16(loaded, loaded))) & kMask) == kMask;
}

} // namespace Ascii

// Widens plain text, bytes from U+0001 to U+007F without line feeds, up to and including `end`. Returns how many bytes
// that were, or 0 if there is anything else or no end within `count` bytes. Both sides need kWidenBlock places after
// those.
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
        if ((odd & Ascii::BitsBelowLowest(ends)) != 0) {
            return 0;
        }
        if (ends != 0) {
            const std::size_t length = i + static_cast<std::size_t>(std::countr_zero(ends)) + 1;
            return length <= count ? length : 0;
        }
    }
    return 0;
}

// Whether the bytes begin with this text, which must be ASCII.
VORN_ALWAYS_INLINE bool EqualsAscii(const char* bytes, std::u16string_view text) {
    using namespace Ascii;
    const std::size_t count = text.size();
    if (count >= kUnits) {
        const auto compare = [&](std::size_t i) {
            const __m128i wide = _mm_unpacklo_epi8(_mm_loadl_epi64(Block(bytes + i)), _mm_setzero_si128());
            return _mm_movemask_epi8(_mm_cmpeq_epi16(wide, _mm_loadu_si128(Block(text.data() + i))));
        };
        int equal = compare(count - kUnits);
        for (std::size_t i = 0; i + kUnits < count; i += kUnits) {
            equal &= compare(i);
        }
        return equal == 0xFFFF;
    }
    if (count >= kUnits / 2) {
        return EqualsEnds<std::uint64_t, std::uint32_t>(bytes, text.data(), count);
    }
    if (count >= kUnits / 4) {
        return EqualsEnds<std::uint32_t, std::uint16_t>(bytes, text.data(), count);
    }
    return EqualsEach(bytes, text);
}

// Narrows units that are all from U+0020 to U+007F.
VORN_ALWAYS_INLINE bool NarrowAscii(const char16_t* units, std::size_t count, char* out) {
    using namespace Ascii;
    if (count >= kUnits) {
        const auto narrow = [&](std::size_t i) {
            const __m128i block = _mm_loadu_si128(Block(units + i));
            const __m128i bytes = _mm_packus_epi16(block, block);
            _mm_storel_epi64(Block(out + i), bytes);
            return ArePlain(bytes);
        };
        __m128i plain = narrow(count - kUnits);
        for (std::size_t i = 0; i + kUnits < count; i += kUnits) {
            plain = _mm_and_si128(plain, narrow(i));
        }
        return _mm_movemask_epi8(plain) == 0xFFFF;
    }
    if (count >= kUnits / 2) {
        return PutEnds<std::uint64_t, std::uint32_t>(units, count, out);
    }
    if (count >= kUnits / 4) {
        return PutEnds<std::uint32_t, std::uint16_t>(units, count, out);
    }
    return NarrowEach(units, count, out);
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
