#pragma once

#include "engine/string/ascii.h"
#include "engine/string/digits.h"

namespace Vorn {

// The fast path of reading: scans the bytes of a text file step by step like Scanner, but accepts only the form in
// which values are written. A step that finds any other form, valid or not, fails, and the caller uses the slow path
// for the whole line. Needs kPlainSlack readable bytes after the text, the first of them 0. An accepted line is shorter
// than kLongestPlainLine.
inline constexpr std::size_t kPlainSlack = 96;
inline constexpr std::size_t kLongestPlainLine = 1024;

class PlainScanner {
public:
    explicit PlainScanner(const char* text) : cursor(text) {}

    const char* Cursor() const { return cursor; }

    // Up to seven. Branches are faster here than a computed count: they are predicted well, and what follows need not
    // wait.
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

    // A text of at most kLongestWord bytes.
    VORN_ALWAYS_INLINE PlainScanner& Word(std::u16string_view word) {
        if (word.size() > kLongestWord || !EqualsAscii(cursor, word)) [[unlikely]] {
            return Fail();
        }
        cursor += word.size();
        return *this;
    }

    // Up to seven digits. Further digits make the next step fail, since no step begins with a digit.
    VORN_ALWAYS_INLINE PlainScanner& Int(std::int32_t& value) {
        const char* start = cursor;
        const bool negative = *start == '-';
        if (negative) [[unlikely]] {
            ++start;
        }
        const std::uint64_t digits = Digits::FromText(Digits::WordAt(start));
        const std::size_t count = Digits::BytesBelow(Digits::BeyondNine(digits) | kLastByte);
        if (count == 0) [[unlikely]] {
            return Fail();
        }
        cursor = start + count;
        const auto magnitude = static_cast<std::int32_t>(Digits::Sum(digits << (64 - 8 * count)));
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
        // Rounding to 64 bits first is harmless: a number with six decimals is either exactly in the middle between two
        // floats or farther from it than the rounding error. The sign is set without a branch, which would be predicted
        // badly.
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

    // A quoted text that leaves kWidenBlock units free in a buffer of `bufferSize` units.
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

    // Whether the line ends here and no step has failed.
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

    // With it BytesBelow finds seven bytes at most.
    static constexpr std::uint64_t kLastByte = std::uint64_t{0x80} << 56;

    // What a failed scanner points to: only an empty word matches here.
    static constexpr char kNothing[kPlainSlack] = {};

    PlainScanner& Fail() {
        cursor = kNothing;
        return *this;
    }

    // A float with one digit before the point.
    VORN_ALWAYS_INLINE bool ShortMillionths(const char* start, std::uint64_t& millionths) {
        const std::uint64_t digits = Digits::WordAt(start) ^ Digits::kPointAndSix;
        millionths = Digits::Millionths(digits);
        cursor = start + 8;
        return Digits::ArePointAndSix(digits);
    }

    // A float with any other number of digits before it.
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
        const std::uint64_t digits = Digits::WordAt(point - 1) ^ Digits::kPointAndSix;
        constexpr std::uint64_t kDecimals = ~std::uint64_t{0xFFFF};
        millionths = number * 1000000 + Digits::Sum(digits & kDecimals);
        cursor = point + 7;
        return Digits::ArePointAndSix(digits);
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
