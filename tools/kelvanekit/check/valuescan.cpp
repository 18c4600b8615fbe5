#include "tools/kelvanekit/check/valuescan.h"

#include "engine/string/numbertext.h"
#include "engine/string/scan.h"
#include "tools/kelvanekit/findings/findingcodes.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <limits>

namespace Vorn {

namespace {

bool IsDigit(char byte) {
    return byte >= '0' && byte <= '9';
}

std::size_t DigitsAt(std::string_view text, std::size_t place) {
    std::size_t count = 0;
    while (place + count < text.size() && IsDigit(text[place + count])) {
        ++count;
    }
    return count;
}

// The length of the longest decimal number at the start, exponent included; 0 if there is none.
std::size_t DecimalLength(std::string_view text) {
    std::size_t end = !text.empty() && (text[0] == '-' || text[0] == '+') ? 1 : 0;
    std::size_t digits = DigitsAt(text, end);
    end += digits;
    if (end < text.size() && text[end] == '.') {
        const std::size_t decimals = DigitsAt(text, end + 1);
        digits += decimals;
        end += digits > 0 ? decimals + 1 : 0;
    }
    if (digits == 0) {
        return 0;
    }
    if (end < text.size() && (text[end] == 'e' || text[end] == 'E')) {
        std::size_t exponent = end + 1;
        exponent += exponent < text.size() && (text[exponent] == '-' || text[exponent] == '+') ? 1 : 0;
        if (const std::size_t count = DigitsAt(text, exponent); count > 0) {
            end = exponent + count;
        }
    }
    return end;
}

// A decimal number as its digits without zeros at either end, and the power of ten of the first one.
struct Decimal {
    explicit Decimal(std::string_view text) {
        isNegative = text.starts_with('-');
        bool seenPoint = false;
        std::size_t i = isNegative || text.starts_with('+') ? 1 : 0;
        for (; i < text.size() && (IsDigit(text[i]) || text[i] == '.'); ++i) {
            if (text[i] == '.') {
                seenPoint = true;
            } else if (!digits.empty() || text[i] != '0') {
                digits += text[i];
                power += seenPoint ? 0 : 1;
            } else {
                power -= seenPoint ? 1 : 0;
            }
        }
        while (digits.ends_with('0')) {
            digits.pop_back();
        }
        AddExponent(text.substr(std::min(i + 1, text.size())));
        if (digits.empty()) {
            power = 0;
            isNegative = false;
        }
    }

    bool operator==(const Decimal&) const = default;

    std::string digits;
    std::int64_t power = 0;
    bool isNegative = false;

private:
    void AddExponent(std::string_view text) {
        text.remove_prefix(text.starts_with('+') ? 1 : 0);
        std::int64_t exponent = 0;
        const auto result = std::from_chars(text.data(), text.data() + text.size(), exponent);
        power += result.ec == std::errc() ? std::clamp<std::int64_t>(exponent, -100000000, 100000000) : 0;
    }
};

bool IsNumberWord(std::string_view word) {
    const std::string lowered = Lowered(word.substr(word.starts_with('-') || word.starts_with('+') ? 1 : 0));
    return lowered == "inf" || lowered == "infinity" || lowered == "nan";
}

// The nearest number of its type, by the scanner of the text archive.
template <class Real>
Real RealOf(std::string_view number) {
    const std::u16string units(number.begin(), number.end());
    Real value = 0;
    if constexpr (sizeof(Real) == sizeof(float)) {
        Scanner(units).Float(value);
    } else {
        Scanner(units).Double(value);
    }
    return value;
}

// A text without single or typographic quotes around it.
std::string_view WithoutOtherQuotes(std::string_view text) {
    constexpr std::string_view kQuotes[] = {"'", "`", "\u2018", "\u2019", "\u201A", "\u201C", "\u201D", "\u201E"};
    for (const std::string_view quote : kQuotes) {
        text.remove_prefix(text.starts_with(quote) ? quote.size() : 0);
        text.remove_suffix(text.ends_with(quote) ? quote.size() : 0);
    }
    return text;
}

std::u16string_view Cut(std::u16string_view units, int size) {
    return units.substr(0, static_cast<std::size_t>(std::max(size - 1, 0)));
}

} // namespace

bool SameDecimal(std::string_view left, std::string_view right) {
    return Decimal(left) == Decimal(right);
}

std::string FloatText(float value) {
    char text[kNumberTextCapacity];
    return {text, PutFixed6(text, value)};
}

void ValueScan::Note(const FindingCode* code, std::string_view part, std::string message, std::string help) {
    if (problem.code != nullptr) {
        return;
    }
    const auto begin = static_cast<std::int32_t>(part.data() - text.data());
    problem = {code, {begin, begin + static_cast<std::int32_t>(part.size())}, std::move(message), std::move(help), {}};
}

void ValueScan::Note(const FindingCode* code, std::string_view part, std::string message, std::string help,
                     std::string replacement) {
    const bool isFirst = problem.code == nullptr;
    Note(code, part, std::move(message), std::move(help));
    if (isFirst) {
        problem.replacement = std::move(replacement);
        problem.hasReplacement = true;
    }
}

// What follows a number whose first `length` bytes are taken.
void ValueScan::NoteRest(std::string_view number, std::size_t length, bool isReal) {
    const std::string_view rest = number.substr(length);
    const std::string message = Quoted(number) + " is not a number as a whole: " + Quoted(number.substr(0, length)) +
                                " is taken, and " + Quoted(Trimmed(rest)) + " is lost";
    if (isReal && rest.starts_with(',') && rest.size() > 1 && DigitsAt(rest, 1) == rest.size() - 1) {
        const std::string decimals = '.' + std::string(rest.substr(1));
        Note(Code("number-with-rest"), rest, message,
             "decimals follow a point: " + Quoted(std::string(number.substr(0, length)) + decimals), decimals);
    } else if (RemarkOf(Trimmed(rest)) == Remark::Comment) {
        Note(Code("number-with-rest"), rest, message, "there are no comments: take it out", {});
    } else {
        Note(Code("number-with-rest"), rest, message);
    }
}

// False if there is no number at all.
bool ValueScan::TakeWhole(std::string_view number, std::int64_t& value) {
    const std::size_t sign = number.starts_with('-') || number.starts_with('+') ? 1 : 0;
    const std::size_t length = sign + DigitsAt(number, sign);
    if (length == sign) {
        Note(Code("number-expected"), number, number.empty() ? "a number is missing" : Quoted(number) + " is no number",
             "write a whole number");
        return false;
    }
    const std::string_view rest = number.substr(length);
    if (!rest.empty()) {
        if (DecimalLength(number) == number.size()) {
            Note(Code("fraction-for-whole-number"), number,
                 "a whole number is wanted: " + Quoted(number) + " becomes " + std::string(number.substr(0, length)),
                 {}, std::string(number.substr(0, length)));
        } else {
            NoteRest(number, length, false);
        }
    }
    const std::string_view digits = number.substr(number.starts_with('+') ? 1 : 0, length - (number[0] == '+' ? 1 : 0));
    if (std::from_chars(digits.data(), digits.data() + digits.size(), value).ec == std::errc::result_out_of_range) {
        value = number[0] == '-' ? std::numeric_limits<std::int64_t>::min() : std::numeric_limits<std::int64_t>::max();
        Note(Code("number-out-of-range"), number, Quoted(number) + " has too many digits: it becomes another number");
    }
    return true;
}

void ValueScan::TakeInt(std::string_view number, std::int32_t& value) {
    std::int64_t wide = 0;
    if (!TakeWhole(number, wide)) {
        return;
    }
    value = static_cast<std::int32_t>(static_cast<std::uint32_t>(static_cast<std::uint64_t>(wide)));
    if (value != wide) {
        Note(Code("number-out-of-range"), number,
             Quoted(number) + " does not fit 32 bits: it is written as " + std::to_string(value));
    }
}

void ValueScan::Int(std::int32_t& value) {
    TakeInt(text, value);
}

void ValueScan::Int64(std::int64_t& value) {
    TakeWhole(text, value);
}

void ValueScan::TakeFloat(std::string_view number, float& value) {
    if (IsNumberWord(number)) {
        value = RealOf<float>(number);
        return;
    }
    const std::size_t length = DecimalLength(number);
    if (length == 0) {
        Note(Code("number-expected"), number, number.empty() ? "a number is missing" : Quoted(number) + " is no number",
             "write a number");
        return;
    }
    const std::string_view decimal = number.substr(0, length);
    value = RealOf<float>(decimal);
    if (length < number.size()) {
        NoteRest(number, length, true);
    } else if (std::isinf(value)) {
        Note(Code("number-out-of-range"), number, Quoted(number) + " is too large: it becomes infinite");
    } else if (const std::string kept = FloatText(value); !SameDecimal(decimal, kept)) {
        Note(Code("lost-decimals"), number, Quoted(number) + " is kept as " + Quoted(kept), {}, kept);
    }
}

void ValueScan::Float(float& value) {
    TakeFloat(text, value);
}

void ValueScan::Double(double& value) {
    const std::size_t length = DecimalLength(text);
    if (length == 0 && !IsNumberWord(text)) {
        Note(Code("number-expected"), text, Quoted(text) + " is no number", "write a number");
        return;
    }
    value = RealOf<double>(text);
    if (length != 0 && length < text.size()) {
        NoteRest(text, length, true);
    }
}

void ValueScan::Color(std::uint32_t& value) {
    const bool hasPrefix = Lowered(text.substr(0, 2)) == "0x";
    const std::string_view digits = text.substr(hasPrefix ? 2 : 0);
    const std::size_t length = std::min(Lowered(digits).find_first_not_of("0123456789abcdef"), digits.size());
    const std::string_view taken = digits.substr(0, length);
    const std::size_t zeros = std::min(taken.find_first_not_of('0'), taken.size());
    if (length == digits.size() && length > 0 && length - zeros <= 8) {
        std::from_chars(taken.data(), taken.data() + length, value, 16);
        return;
    }
    const std::size_t begin = std::min(text.find_first_of("0123456789abcdefABCDEF"), text.size());
    const std::string_view tail = text.substr(begin);
    const bool isBehind =
        !tail.empty() && tail.size() <= 8 && Lowered(tail).find_first_not_of("0123456789abcdef") == std::string::npos;
    std::string message = text.empty() ? "a colour is missing" : Quoted(text) + " is no colour";
    std::string help = "write up to eight hexadecimal digits: alpha, red, green and blue, two each";
    if (isBehind) {
        std::from_chars(tail.data(), tail.data() + tail.size(), value, 16);
        Note(Code("bad-color"), text, std::move(message), std::move(help), std::string(tail));
    } else {
        Note(Code("bad-color"), text, std::move(message), std::move(help));
    }
}

void ValueScan::Bool(Vorn::Bool& value) {
    if (text == "TRUE" || text == "FALSE") {
        value = text == "TRUE";
        return;
    }
    const std::string lowered = Lowered(text);
    const auto isLike = [&](std::initializer_list<std::string_view> words) {
        return std::ranges::any_of(words, [&](std::string_view word) { return lowered.starts_with(word); });
    };
    constexpr auto kCode = Code("bad-boolean");
    std::string message = text.empty() ? "TRUE or FALSE is missing" : Quoted(text) + " is neither TRUE nor FALSE";
    if (isLike({"t", "\"t", "y", "1", "on"})) {
        value = true;
        Note(kCode, text, std::move(message), "did you mean TRUE?", "TRUE");
    } else if (isLike({"f", "\"f", "n", "0", "of"})) {
        value = false;
        Note(kCode, text, std::move(message), "did you mean FALSE?", "FALSE");
    } else {
        Note(kCode, text, std::move(message), "write TRUE or FALSE");
    }
}

void ValueScan::Text(char16_t* buffer, int size) {
    const std::size_t opening = text.find('"');
    const std::size_t closing = text.rfind('"');
    std::string_view inside = text;
    if (opening == std::string_view::npos) {
        inside = WithoutOtherQuotes(text);
        Note(Code("text-not-quoted"), text,
             text.empty()                  ? "a text is missing"
             : inside.size() < text.size() ? Quoted(text) + " stands in other quotes than \""
                                           : Quoted(text) + " has no quotes",
             "write " + Quoted('"' + std::string(inside) + '"'), '"' + std::string(inside) + '"');
    } else if (opening > 0) {
        inside = text.substr(opening + 1, closing > opening ? closing - opening - 1 : 0);
        Note(Code("text-not-quoted"), text, "what stands in front of the quote is lost",
             "a text stands in double quotes", '"' + std::string(Trimmed(text.substr(0, opening))) + '"');
    } else if (closing == opening) {
        inside = text.substr(1);
        Note(Code("text-not-quoted"), text, "the closing quote is missing", {}, std::string(text) + '"');
    } else {
        const std::size_t second = text.find('"', 1);
        inside = text.substr(1, closing - 1);
        if (second < closing) {
            Note(Code("quote-inside"), text.substr(second, closing - second),
                 "a quote ends the text: what follows it is lost", "there is no way to write a quote inside a text");
        } else if (closing + 1 < text.size()) {
            Note(Code("text-after-quote"), text.substr(closing + 1),
                 Quoted(Trimmed(text.substr(closing + 1))) + " follows the closing quote and is lost", {}, {});
        }
    }
    const std::u16string units = ToUnits(inside.substr(0, inside.find('\0')));
    const std::u16string_view kept = Cut(units, size);
    if (kept.size() < units.size()) {
        Note(Code("text-too-long"), text,
             "the text has " + std::to_string(units.size()) + " units, and there is room for " +
                 std::to_string(size - 1) + ": the rest is lost",
             {}, '"' + ToUtf8(kept) + '"');
    }
    buffer[kept.copy(buffer, kept.size())] = u'\0';
}

void ValueScan::Nothing() {
    if (!text.empty()) {
        Note(Code("unexpected-value"), text, Quoted(text) + " follows a key that begins a group, and is lost", {}, {});
    }
}

// Steps that do not fit are noted and passed over, so that the numbers behind them are found.
template <class Value, class Take>
void ValueScan::TakeList(std::span<Value> values, bool hasCommas, Take take) {
    std::string_view rest = text;
    const auto expect = [&](char byte, const char* name) {
        rest = Trimmed(rest);
        if (rest.starts_with(byte)) {
            rest.remove_prefix(1);
        } else {
            Note(Code("number-expected"), rest.substr(0, std::min<std::size_t>(rest.size(), 1)),
                 std::string(name) + " is missing",
                 hasCommas ? "write the numbers as in `[ 1 , 2 ]`" : "write the numbers as in `[ 1.0 2.0 ]`");
        }
    };
    expect('[', text.empty() ? "a list of numbers" : "the opening bracket");
    for (Value& value : values) {
        rest = Trimmed(rest);
        const std::size_t length = std::min(rest.find_first_of(hasCommas ? ",] \t" : "] \t"), rest.size());
        take(rest.substr(0, length), value);
        rest.remove_prefix(length);
        if (hasCommas && &value != &values.back()) {
            expect(',', "a comma");
        }
    }
    expect(']', "the closing bracket");
    if (rest = Trimmed(rest); !rest.empty()) {
        Note(Code("number-with-rest"), rest, Quoted(rest) + " follows the numbers and is lost", {}, {});
    }
}

void ValueScan::Ints(std::span<std::int32_t> values) {
    TakeList(values, true, [this](std::string_view number, std::int32_t& value) { TakeInt(number, value); });
}

void ValueScan::Floats(std::span<float> values) {
    TakeList(values, false, [this](std::string_view number, float& value) { TakeFloat(number, value); });
}

} // namespace Vorn
