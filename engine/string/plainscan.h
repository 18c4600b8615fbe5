#pragma once

#include "engine/string/ascii.h"

#include <bit>
#include <cstdint>
#include <cstring>

namespace Vorn {

// Takes values straight from the bytes of a text file in exactly the form that they are written in, step by step like
// Scanner. A step that meets any other form, valid or not, ends it, and the caller goes the general road with the whole
// line; so nothing here has to tell good from bad. Needs kPlainSlack readable bytes behind the text, the first of them
// 0.
inline constexpr std::size_t kPlainSlack = 96;

class PlainScanner {
public:
    explicit PlainScanner(const char* text) : cursor(text) {}

    // Whether all steps so far met their form.
    bool IsGood() const { return good; }
    const char* Cursor() const { return cursor; }

    PlainScanner& Tabs() {
        while (*cursor == '\t') {
            ++cursor;
        }
        return *this;
    }

    // One blank.
    PlainScanner& Blank() { return Literal(u' '); }

    PlainScanner& Literal(char16_t unit) {
        if (*cursor == static_cast<char>(unit)) [[likely]] {
            ++cursor;
            return *this;
        }
        return Fail();
    }

    // A text that leaves some of the slack.
    PlainScanner& Word(std::u16string_view word) {
        if (word.size() <= kLongestWord && EqualsAscii(cursor, word)) [[likely]] {
            cursor += word.size();
            return *this;
        }
        return Fail();
    }

    // Up to nine digits, so that no number needs to wrap.
    PlainScanner& Int(std::int32_t& value) {
        const bool negative = *cursor == '-';
        const char* start = cursor + (negative ? 1 : 0);
        std::uint32_t magnitude = 0;
        const char* end = TakeDigits(start, magnitude);
        if (!IsShort(end - start)) [[unlikely]] {
            return Fail();
        }
        cursor = end;
        value = static_cast<std::int32_t>(negative ? 0 - magnitude : magnitude);
        return *this;
    }

    // Up to nine digits, a point and six more. Their quotient is exact in 64 bits but for one rounding; the second one
    // is safe unless it starts from the middle between two floats.
    PlainScanner& Float(float& value) {
        const bool negative = *cursor == '-';
        const char* start = cursor + (negative ? 1 : 0);
        std::uint64_t millionths = 0;
        const char* point = TakeDigits(start, millionths);
        if (!IsShort(point - start) || *point != '.' || !AddSixDigits(point + 1, millionths)) [[unlikely]] {
            return Fail();
        }
        cursor = point + 7;
        const double quotient = static_cast<double>(millionths) / 1e6;
        if ((std::bit_cast<std::uint64_t>(quotient) & 0x1FFFFFFF) == 0x10000000) [[unlikely]] {
            return Fail();
        }
        const auto magnitude = static_cast<float>(quotient);
        value = negative ? -magnitude : magnitude;
        return *this;
    }

    // Up to eight lower-case digits.
    PlainScanner& Hex(std::uint32_t& value) {
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
        const std::size_t length = WidenUntil(text, static_cast<std::size_t>(bufferSize - kRoom), buffer, '"');
        if (length == 0) [[unlikely]] {
            return Fail();
        }
        buffer[length - 1] = u'\0';
        cursor += length + 1;
        return *this;
    }

    PlainScanner& LineEnd() {
        cursor += *cursor == '\r' ? 1 : 0;
        return Literal(u'\n');
    }

private:
    static constexpr std::size_t kLongestWord = kPlainSlack - 2 * kWidenBlock;

    static bool IsShort(std::ptrdiff_t digits) { return digits >= 1 && digits <= 9; }

    PlainScanner& Fail() {
        static constexpr char kNothing[kPlainSlack] = {};
        cursor = kNothing;
        good = false;
        return *this;
    }

    // Appends digits to a number and returns where they end.
    template <class Number>
    static const char* TakeDigits(const char* p, Number& number) {
        for (std::uint32_t digit = DigitAt(p); digit < 10; digit = DigitAt(p)) {
            number = number * 10 + digit;
            ++p;
        }
        return p;
    }

    // Appends exactly six digits. They are taken as the last of eight in the bytes of a word, summed by pairs, then by
    // fours.
    static bool AddSixDigits(const char* p, std::uint64_t& number) {
        if constexpr (std::endian::native != std::endian::little) {
            return false;
        }
        constexpr std::uint64_t kEachByte = 0x0101010101010101;
        std::uint64_t digits = 0;
        std::memcpy(&digits, p, sizeof digits);
        digits ^= kEachByte * '0';
        const std::uint64_t beyondNine = (digits | (digits + kEachByte * 0x76)) & kEachByte * 0x80;
        if ((beyondNine & 0x00FFFFFFFFFFFFFF) != std::uint64_t{0x80} << 48) {
            return false;
        }
        digits <<= 16;
        const std::uint64_t pairs = digits * 10 + (digits >> 8);
        constexpr std::uint64_t kEveryFourth = 0x000000FF000000FF;
        const std::uint64_t sum = (pairs & kEveryFourth) * (100 + (std::uint64_t{1000000} << 32)) +
                                  (pairs >> 16 & kEveryFourth) * (1 + (std::uint64_t{10000} << 32));
        number = number * 1000000 + (sum >> 32);
        return true;
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
    bool good = true;
};

} // namespace Vorn
