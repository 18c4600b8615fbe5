#pragma once

#include "engine/string/ascii.h"

#include <bit>
#include <cstdint>
#include <cstring>

namespace Vorn {

// Takes values straight from the bytes of a text file in exactly the form that they are written in, step by step like
// Scanner. A step that meets any other form, valid or not, ends it, and the caller takes the slow path with the whole
// line; so nothing here has to tell good from bad. Needs kPlainSlack readable bytes behind the text, the first of them
// 0. What it takes is always shorter than kLongestPlainLine.
inline constexpr std::size_t kPlainSlack = 96;
inline constexpr std::size_t kLongestPlainLine = 1024;

class PlainScanner {
public:
    explicit PlainScanner(const char* text) : cursor(text) {}

    const char* Cursor() const { return cursor; }

    // Up to seven. Counted by branches, which are foreseen, where a computed count would hold up what follows.
    VORN_ALWAYS_INLINE PlainScanner& Tabs() {
        for (const char* limit = cursor + 7; *cursor == '\t' && cursor != limit;) {
            ++cursor;
        }
        return *this;
    }

    // One blank.
    VORN_ALWAYS_INLINE PlainScanner& Blank() { return Literal(u' '); }

    VORN_ALWAYS_INLINE PlainScanner& Literal(char16_t unit) {
        if (*cursor != static_cast<char>(unit)) [[unlikely]] {
            return Fail();
        }
        ++cursor;
        return *this;
    }

    // A text that leaves some of the slack.
    VORN_ALWAYS_INLINE PlainScanner& Word(std::u16string_view word) {
        if (word.size() > kLongestWord || !EqualsAscii(cursor, word)) [[unlikely]] {
            return Fail();
        }
        cursor += word.size();
        return *this;
    }

    // Up to seven digits. More stay where they are and end the next step, since none begins with a digit.
    VORN_ALWAYS_INLINE PlainScanner& Int(std::int32_t& value) {
        const char* start = cursor;
        const bool negative = *start == '-';
        if (negative) [[unlikely]] {
            ++start;
        }
        const std::uint64_t digits = WordAt(start) ^ kEachByte * '0';
        const std::size_t count = BytesBelow(BeyondNine(digits) | kLastByte);
        if (count == 0) [[unlikely]] {
            return Fail();
        }
        cursor = start + count;
        const auto magnitude = static_cast<std::int32_t>(SumOfDigits(digits << (64 - 8 * count)));
        value = negative ? -magnitude : magnitude;
        return *this;
    }

    // Up to nine digits, a point and six more.
    VORN_ALWAYS_INLINE PlainScanner& Float(float& value) {
        const bool negative = *cursor == '-';
        const char* start = cursor + (negative ? 1 : 0);
        std::uint64_t millionths = 0;
        if (!(start[1] == '.' ? ShortMillionths(start, millionths) : LongMillionths(start, millionths))) [[unlikely]] {
            return Fail();
        }
        // To round to 64 bits first does no harm: six decimals are either the middle between two floats or farther from
        // it than that rounding goes. The sign needs no branch, which could hardly be foreseen.
        const auto magnitude = static_cast<float>(static_cast<double>(static_cast<std::int64_t>(millionths)) / 1e6);
        value = std::bit_cast<float>(std::bit_cast<std::uint32_t>(magnitude) | std::uint32_t{negative} << 31);
        return *this;
    }

    // Up to eight lower-case digits.
    VORN_ALWAYS_INLINE PlainScanner& Hex(std::uint32_t& value) {
        const char* start = cursor;
        std::uint32_t number = 0;
        for (std::uint32_t digit = HexDigit(); digit < 16; digit = HexDigit()) {
            number = number << 4 | digit;
            ++cursor;
        }
        if (cursor == start || cursor - start > 8) [[unlikely]] {
            return Fail();
        }
        value = number;
        return *this;
    }

    // A quoted text that fits a buffer of `bufferSize` units with some room to spare.
    PlainScanner& Quoted(char16_t* buffer, int bufferSize) {
        constexpr int kRoom = static_cast<int>(kWidenBlock);
        if (*cursor != '"' || bufferSize <= kRoom) [[unlikely]] {
            return Fail();
        }
        const auto* text = reinterpret_cast<const unsigned char*>(cursor + 1);
        const auto limit = static_cast<std::size_t>(bufferSize - kRoom);
        const std::size_t length = WidenUntil(text, std::min(limit, kLongestText), buffer, '"');
        if (length == 0) [[unlikely]] {
            return Fail();
        }
        buffer[length - 1] = u'\0';
        cursor += length + 1;
        return *this;
    }

    // Whether the line ends here and all steps so far met their form.
    VORN_ALWAYS_INLINE bool LineEnd() {
        const bool hasReturn = std::memcmp(cursor, "\r\n", 2) == 0;
        if (!hasReturn && *cursor != '\n') [[unlikely]] {
            return false;
        }
        cursor += hasReturn ? 2 : 1;
        return true;
    }

private:
    static constexpr std::size_t kLongestWord = kPlainSlack - 2 * kWidenBlock;
    static constexpr std::size_t kLongestText = kLongestPlainLine / 2;
    static constexpr std::uint64_t kEachByte = 0x0101010101010101;

    // Beside other bits it makes BytesBelow find seven bytes at most.
    static constexpr std::uint64_t kLastByte = std::uint64_t{0x80} << 56;

    // The last digit ahead of a point, the point and the decimals, which come to the digits and a 0 for the point. What
    // is added takes a digit beyond 9 to its top bit; of the point every bit is wrong.
    static constexpr std::uint64_t kPointByte = 0xFF00;
    static constexpr std::uint64_t kPointAndSix = kEachByte * '0' ^ std::uint64_t{'0' ^ '.'} << 8;
    static constexpr std::uint64_t kBeyondNine = kEachByte * (0x7F - 9) & ~kPointByte;
    static constexpr std::uint64_t kWrongBits = kEachByte * 0x80 | kPointByte;

    // No step fits what follows but an empty word or text.
    static constexpr char kNothing[kPlainSlack] = {};

    PlainScanner& Fail() {
        cursor = kNothing;
        return *this;
    }

    // Eight bytes, the first one lowest.
    static std::uint64_t WordAt(const char* p) {
        std::uint64_t word = 0;
        std::memcpy(&word, p, sizeof word);
        if constexpr (std::endian::native == std::endian::big) {
            word = SwapBytes(word);
        }
        return word;
    }

    static std::uint64_t SwapBytes(std::uint64_t word) {
        std::uint64_t swapped = 0;
        for (int i = 0; i < 8; ++i, word >>= 8) {
            swapped = swapped << 8 | (word & 0xFF);
        }
        return swapped;
    }

    // How many bytes there are below the lowest one that has a bit.
    static std::size_t BytesBelow(std::uint64_t bits) { return static_cast<unsigned>(std::countr_zero(bits)) / 8; }

    // The top bit of each byte beyond 9, up to the first one and with it; behind a byte that is not, anything.
    VORN_ALWAYS_INLINE static std::uint64_t BeyondNine(std::uint64_t digits) {
        return (digits | (digits + kEachByte * (0x7F - 9))) & kEachByte * 0x80;
    }

    static bool AreDigitPointAndSix(std::uint64_t digits) {
        return ((digits | (digits + kBeyondNine)) & kWrongBits) == 0;
    }

    // A float with one digit ahead of the point, which goes to the place of the point.
    VORN_ALWAYS_INLINE bool ShortMillionths(const char* start, std::uint64_t& millionths) {
        const std::uint64_t digits = WordAt(start) ^ kPointAndSix;
        millionths = SumOfDigits(digits + (digits & 0xFF) * 0xFF);
        cursor = start + 8;
        return AreDigitPointAndSix(digits);
    }

    // A float with any other number of digits there.
    VORN_ALWAYS_INLINE bool LongMillionths(const char* start, std::uint64_t& millionths) {
        std::uint64_t number = 0;
        const char* point = start;
        const char* limit = start + 9;
        for (std::uint32_t digit = DigitAt(point); digit < 10 && point != limit; digit = DigitAt(point)) {
            number = number * 10 + digit;
            ++point;
        }
        if (point == start) [[unlikely]] {
            return false;
        }
        const std::uint64_t digits = WordAt(point - 1) ^ kPointAndSix;
        millionths = number * 1000000 + SumOfDigits(digits & ~std::uint64_t{0xFFFF});
        cursor = point + 7;
        return AreDigitPointAndSix(digits);
    }

    // The number that the eight bytes are the digits of: summed by pairs, then by fours, each sum on top of its lanes.
    VORN_ALWAYS_INLINE static std::uint64_t SumOfDigits(std::uint64_t digits) {
        const std::uint64_t pairs = digits * (1 + (10 << 8)) >> 8 & 0x00FF00FF00FF00FF;
        const std::uint64_t fours = pairs * (1 + (100 << 16)) >> 16 & 0x0000FFFF0000FFFF;
        return fours * (1 + (std::uint64_t{10000} << 32)) >> 32;
    }

    static std::uint32_t DigitAt(const char* p) {
        return static_cast<std::uint32_t>(static_cast<unsigned char>(*p)) - '0';
    }

    std::uint32_t HexDigit() const {
        const std::uint32_t digit = DigitAt(cursor);
        const std::uint32_t letter = digit - ('a' - '0');
        return digit < 10 ? digit : letter < 6 ? letter + 10 : 16;
    }

    const char* cursor;
};

} // namespace Vorn
