#include "engine/string/scan.h"

#include <algorithm>
#include <bit>
#include <charconv>
#include <cstddef>
#include <iterator>
#include <limits>
#include <string_view>

namespace Vorn {

namespace {

constexpr double kPowersOfTen[] = {1e0,  1e1,  1e2,  1e3,  1e4,  1e5,  1e6,  1e7,  1e8,  1e9,  1e10, 1e11,
                                   1e12, 1e13, 1e14, 1e15, 1e16, 1e17, 1e18, 1e19, 1e20, 1e21, 1e22};

constexpr std::uint64_t kExactDoubleLimit = std::uint64_t{1} << 53;

// No file line is longer, and a longer number text could not be told from one cut here by more than its last bit.
constexpr std::size_t kNumberLimit = 1024;

bool IsDigit(char16_t unit) {
    return static_cast<char16_t>(unit - u'0') < 10;
}

std::uint32_t DigitValue(char16_t unit) {
    return static_cast<std::uint32_t>(unit - u'0');
}

int HexDigitValue(char16_t unit) {
    if (IsDigit(unit)) {
        return unit - u'0';
    }
    const int letter = (unit | 0x20) - u'a';
    return unit < 0x80 && letter >= 0 && letter < 6 ? letter + 10 : -1;
}

bool TakeSign(const char16_t*& cursor) {
    const bool negative = *cursor == u'-';
    if (negative || *cursor == u'+') {
        ++cursor;
    }
    return negative;
}

// Signed decimal digits modulo 2^64.
bool ScanDecimal(const char16_t*& cursor, std::uint64_t& value) {
    const char16_t* p = SkipWhiteSpace(cursor);
    const bool negative = TakeSign(p);
    if (!IsDigit(*p)) {
        return false;
    }
    std::uint64_t magnitude = 0;
    for (; IsDigit(*p); ++p) {
        magnitude = magnitude * 10 + DigitValue(*p);
    }
    value = negative ? 0 - magnitude : magnitude;
    cursor = p;
    return true;
}

// A number text taken apart: `mantissa` (exact up to 19 digits) times 10 to the power of -fractionDigits, and the
// exponent that was written behind it.
struct Decimal {
    const char16_t* digits = nullptr;
    const char16_t* end = nullptr;
    std::uint64_t mantissa = 0;
    std::ptrdiff_t digitCount = 0;
    std::ptrdiff_t fractionDigits = 0;
    bool negative = false;
    bool hasExponent = false;
};

bool SplitDecimal(const char16_t* p, Decimal& decimal) {
    decimal.negative = TakeSign(p);
    decimal.digits = p;
    for (; IsDigit(*p); ++p) {
        decimal.mantissa = decimal.mantissa * 10 + DigitValue(*p);
    }
    decimal.digitCount = p - decimal.digits;
    if (*p == u'.') {
        const char16_t* fraction = ++p;
        for (; IsDigit(*p); ++p) {
            decimal.mantissa = decimal.mantissa * 10 + DigitValue(*p);
        }
        decimal.fractionDigits = p - fraction;
        decimal.digitCount += decimal.fractionDigits;
    }
    decimal.end = p;
    if (decimal.digitCount == 0) {
        return false;
    }
    if ((*p | 0x20) == u'e') {
        ++p;
        TakeSign(p);
        decimal.hasExponent = IsDigit(*p);
        while (decimal.hasExponent && IsDigit(*p)) {
            decimal.end = ++p;
        }
    }
    return true;
}

bool StartsWithWord(const char16_t* text, std::u16string_view word) {
    return std::all_of(word.begin(), word.end(),
                       [&](char16_t letter) { return *text < 0x80 && (*text++ | 0x20) == letter; });
}

template <class Real>
bool ScanWord(const char16_t*& cursor, Real& value) {
    const char16_t* p = SkipWhiteSpace(cursor);
    const bool negative = TakeSign(p);
    const auto sign = negative ? Real{-1} : Real{1};
    if (StartsWithWord(p, u"inf")) {
        value = sign * std::numeric_limits<Real>::infinity();
        cursor = p + (StartsWithWord(p, u"infinity") ? 8 : 3);
        return true;
    }
    if (StartsWithWord(p, u"nan")) {
        // Not the product with the sign: the sign bit of a product with a not-a-number is anybody's.
        using Bits = std::conditional_t<sizeof(Real) == 4, std::uint32_t, std::uint64_t>;
        constexpr Bits kSignBit = Bits{1} << (sizeof(Bits) * 8 - 1);
        value = std::bit_cast<Real>(std::bit_cast<Bits>(std::numeric_limits<Real>::quiet_NaN()) |
                                    (negative ? kSignBit : Bits{0}));
        cursor = p + 3;
        return true;
    }
    return false;
}

// Whether a number beyond the range of its type is too large rather than too small.
bool IsHuge(std::string_view text) {
    const std::size_t mark = std::min(text.find_first_of("eE"), text.size());
    const std::string_view exponent = text.substr(mark);
    if (!exponent.empty()) {
        std::size_t digit = exponent.find_first_of("123456789");
        if (digit != std::string_view::npos && exponent.size() - digit > 5) {
            return exponent[1] != '-';
        }
    }
    const std::string_view digits = text.substr(0, mark);
    const auto point = static_cast<std::ptrdiff_t>(std::min(digits.find('.'), digits.size()));
    const auto first = static_cast<std::ptrdiff_t>(std::min(digits.find_first_of("123456789"), digits.size()));
    int power = 0;
    if (!exponent.empty()) {
        const char* start = exponent.data() + (exponent[1] == '+' ? 2 : 1);
        std::from_chars(start, exponent.data() + exponent.size(), power);
    }
    return point - first + power > 0;
}

// The general road: the library's exact conversion of the text as it stands.
template <class Real>
Real ConvertText(const Decimal& decimal) {
    char text[kNumberLimit];
    const auto length = std::min(static_cast<std::size_t>(decimal.end - decimal.digits), sizeof text);
    std::transform(decimal.digits, decimal.digits + length, text,
                   [](char16_t unit) { return static_cast<char>(unit); });
    Real value = 0;
    const std::from_chars_result result = std::from_chars(text, text + length, value);
    if (result.ec == std::errc::result_out_of_range) {
        value = IsHuge({text, length}) ? std::numeric_limits<Real>::infinity() : Real{0};
    }
    return decimal.negative ? -value : value;
}

// Divides in 64 bits where mantissa and power are exact there. The quotient is then rounded once, and rounding it
// again to 32 bits is safe unless it lies on the middle between two floats, where it may hide a remainder.
bool DivideExactly(const Decimal& decimal, float& value) {
    if (decimal.hasExponent || decimal.digitCount > 19 || decimal.mantissa > kExactDoubleLimit) {
        return false;
    }
    const double quotient = static_cast<double>(decimal.mantissa) / kPowersOfTen[decimal.fractionDigits];
    if ((std::bit_cast<std::uint64_t>(quotient) & 0x1FFFFFFF) == 0x10000000) {
        return false;
    }
    value = static_cast<float>(decimal.negative ? -quotient : quotient);
    return true;
}

} // namespace

bool Scanner::ScanInt(std::int32_t& value) {
    std::uint64_t bits = 0;
    if (!ScanDecimal(cursor, bits)) {
        return false;
    }
    value = static_cast<std::int32_t>(static_cast<std::uint32_t>(bits));
    return true;
}

bool Scanner::ScanInt64(std::int64_t& value) {
    std::uint64_t bits = 0;
    if (!ScanDecimal(cursor, bits)) {
        return false;
    }
    value = static_cast<std::int64_t>(bits);
    return true;
}

bool Scanner::ScanHex(std::uint32_t& value) {
    const char16_t* p = SkipWhiteSpace(cursor);
    const bool negative = TakeSign(p);
    if (HexDigitValue(*p) < 0) {
        return false;
    }
    if (p[0] == u'0' && (p[1] | 0x20) == u'x') {
        p += 2;
    }
    std::uint32_t magnitude = 0;
    for (int digit = HexDigitValue(*p); digit >= 0; digit = HexDigitValue(*++p)) {
        magnitude = magnitude * 16 + static_cast<std::uint32_t>(digit);
    }
    value = negative ? 0 - magnitude : magnitude;
    cursor = p;
    return true;
}

bool Scanner::ScanFloat(float& value) {
    Decimal decimal;
    if (!SplitDecimal(SkipWhiteSpace(cursor), decimal)) {
        return ScanWord(cursor, value);
    }
    if (!DivideExactly(decimal, value)) {
        value = ConvertText<float>(decimal);
    }
    cursor = decimal.end;
    return true;
}

bool Scanner::ScanDouble(double& value) {
    Decimal decimal;
    if (!SplitDecimal(SkipWhiteSpace(cursor), decimal)) {
        return ScanWord(cursor, value);
    }
    value = ConvertText<double>(decimal);
    cursor = decimal.end;
    return true;
}

} // namespace Vorn
