#pragma once

#include <bit>
#include <cstdint>
#include <string_view>

namespace Vorn {

// The white space of content files: U+0009 to U+000D and the blank, whatever the locale.
constexpr bool IsWhiteSpace(char16_t unit) {
    return unit == u' ' || (unit >= u'\t' && unit <= u'\r');
}

inline const char16_t* SkipWhiteSpace(const char16_t* text) {
    while (IsWhiteSpace(*text)) {
        ++text;
    }
    return text;
}

// Whether a double within the range of floats lies in the middle between two of them: of the 29 bits that a float does
// not have, the top one is set alone. 16777217.0 does, with the bits 0x4170000010000000.
constexpr bool IsMiddleOfFloats(double value) {
    return (std::bit_cast<std::uint64_t>(value) & 0x1FFFFFFF) == 0x10000000;
}

// Scans a terminated text step by step. The first step that does not match ends the scan: it and all later steps store
// nothing. `Stored` is the number of values stored so far.
//
// Integers are decimal and wrap around; what follows the digits is left to the next step. Floats are the longest prefix
// of digits, point and complete exponent, or inf, infinity, nan in any case, rounded once to nearest even; overflow
// stores an infinity. No hexadecimal floats, no locale.
class Scanner {
public:
    // The most units of a float or a double that are examined; lines of files are not longer.
    static constexpr std::size_t kLongestNumber = 1024;

    // The text must be followed by a terminator.
    explicit Scanner(std::u16string_view text) : cursor(text.data()), end(text.data() + text.size()) {}

    // Any run of white space, also none.
    Scanner& Blank() {
        cursor = SkipWhiteSpace(cursor);
        return *this;
    }

    // Exactly this unit, without white space before it.
    Scanner& Literal(char16_t unit) {
        if (*cursor == unit) {
            ++cursor;
        } else {
            Fail();
        }
        return *this;
    }

    // Each unit of a text like Literal.
    Scanner& Word(std::u16string_view word) {
        for (const char16_t unit : word) {
            Literal(unit);
        }
        return *this;
    }

    Scanner& Int(std::int32_t& value) { return Store(ScanInt(value)); }
    Scanner& Int64(std::int64_t& value) { return Store(ScanInt64(value)); }
    Scanner& Hex(std::uint32_t& value) { return Store(ScanHex(value)); }
    Scanner& Float(float& value) { return Store(ScanFloat(value)); }
    Scanner& Double(double& value) { return Store(ScanDouble(value)); }

    int Stored() const { return stored; }

private:
    bool ScanInt(std::int32_t& value);
    bool ScanInt64(std::int64_t& value);
    bool ScanHex(std::uint32_t& value);
    bool ScanFloat(float& value);
    bool ScanDouble(double& value);

    // At the end of the text no further step matches but a blank.
    void Fail() { cursor = end; }

    Scanner& Store(bool scanned) {
        if (scanned) {
            ++stored;
        } else {
            Fail();
        }
        return *this;
    }

    const char16_t* cursor;
    const char16_t* end;
    int stored = 0;
};

} // namespace Vorn
