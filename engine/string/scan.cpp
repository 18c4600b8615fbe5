#include "engine/string/scan.h"

#include "engine/string/digits.h"

#include <algorithm>
#include <bit>
#include <charconv>
#include <cstddef>
#include <cstring>
#include <iterator>
#include <limits>
#include <string_view>

namespace Vorn {

namespace {

constexpr double kPowersOfTen[] = {1e0,  1e1,  1e2,  1e3,  1e4,  1e5,  1e6,  1e7,  1e8,  1e9,  1e10, 1e11,
                                   1e12, 1e13, 1e14, 1e15, 1e16, 1e17, 1e18, 1e19, 1e20, 1e21, 1e22};

// All whole numbers up to this one are doubles.
constexpr std::uint64_t kExactDoubleLimit = std::uint64_t{1} << 53;

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

// Digits appended to a number, modulo 2^64.
std::uint64_t TakeDigits(const char16_t*& p, std::uint64_t number) {
    for (std::uint32_t digit = DigitValue(*p); digit < 10; digit = DigitValue(*++p)) {
        number = number * 10 + digit;
    }
    return number;
}

// Appends four digits at once if all four units are digits. For little-endian platforms.
void TakeFourDigits(const char16_t*& p, std::uint64_t& number) {
    std::uint64_t lanes = 0;
    std::memcpy(&lanes, p, sizeof lanes);
    lanes -= Digits::kEachLane * u'0';
    if (!Digits::HasLaneBeyondNine(lanes)) {
        number = number * 10000 + Digits::SumOfLanes(lanes);
        p += 4;
    }
}

// Signed decimal digits modulo 2^64.
bool ScanDecimal(const char16_t*& cursor, std::uint64_t& value) {
    const char16_t* p = SkipWhiteSpace(cursor);
    const bool negative = TakeSign(p);
    if (!IsDigit(*p)) {
        return false;
    }
    const std::uint64_t magnitude = TakeDigits(p, 0);
    value = negative ? 0 - magnitude : magnitude;
    cursor = p;
    return true;
}

const char16_t* SkipDigits(const char16_t* p) {
    while (IsDigit(*p)) {
        ++p;
    }
    return p;
}

// The end of the longest decimal number without sign at `p`, or `p` if there is none.
const char16_t* EndOfDecimal(const char16_t* p) {
    const char16_t* end = SkipDigits(p);
    bool hasDigits = end != p;
    if (*end == u'.') {
        const char16_t* fraction = end + 1;
        end = SkipDigits(fraction);
        hasDigits = hasDigits || end != fraction;
    }
    if (!hasDigits) {
        return p;
    }
    if ((*end | 0x20) == u'e') {
        const char16_t* exponent = end + 1;
        TakeSign(exponent);
        end = IsDigit(*exponent) ? SkipDigits(exponent) : end;
    }
    return end;
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
        // Not the product with the sign: the sign bit of a product with NaN is not defined.
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

// The slow path: the exact conversion of the standard library.
template <class Real>
bool ScanReal(const char16_t*& cursor, Real& value) {
    const char16_t* p = SkipWhiteSpace(cursor);
    const bool negative = TakeSign(p);
    const char16_t* end = EndOfDecimal(p);
    if (end == p) {
        return ScanWord(cursor, value);
    }
    char text[Scanner::kLongestNumber];
    const auto length = std::min(static_cast<std::size_t>(end - p), sizeof text);
    std::transform(p, p + length, text, [](char16_t unit) { return static_cast<char>(unit); });
    Real magnitude = 0;
    const std::from_chars_result result = std::from_chars(text, text + length, magnitude);
    if (result.ec == std::errc::result_out_of_range) {
        magnitude = IsHuge({text, length}) ? std::numeric_limits<Real>::infinity() : Real{0};
    }
    value = negative ? -magnitude : magnitude;
    cursor = end;
    return true;
}

// Divides in 64 bits, where mantissa and power are exact. The quotient is then rounded once. To round it again to 32
// bits is safe unless it lies in the middle between two floats, where it may hide a remainder.
bool DivideExactly(std::uint64_t mantissa, std::ptrdiff_t places, float& value) {
    const double quotient = static_cast<double>(mantissa) / kPowersOfTen[places];
    value = static_cast<float>(quotient);
    return mantissa <= kExactDoubleLimit && !IsMiddleOfFloats(quotient);
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

// The fast path is for short numbers without an exponent, which nearly all are.
bool Scanner::ScanFloat(float& value) {
    constexpr std::ptrdiff_t kExactDigits = 19;
    const char16_t* p = SkipWhiteSpace(cursor);
    const bool negative = TakeSign(p);
    const char16_t* start = p;
    std::uint64_t mantissa = TakeDigits(p, 0);
    std::ptrdiff_t digits = p - start;
    std::ptrdiff_t places = 0;
    if (*p == u'.') {
        const char16_t* fraction = ++p;
        if (end - p >= 4 && std::endian::native == std::endian::little) {
            TakeFourDigits(p, mantissa);
        }
        mantissa = TakeDigits(p, mantissa);
        places = p - fraction;
        digits += places;
    }
    float magnitude = 0.0f;
    if (digits == 0 || digits > kExactDigits || (*p | 0x20) == u'e' || !DivideExactly(mantissa, places, magnitude)) {
        return ScanReal(cursor, value);
    }
    value = negative ? -magnitude : magnitude;
    cursor = p;
    return true;
}

bool Scanner::ScanDouble(double& value) {
    return ScanReal(cursor, value);
}

} // namespace Vorn
