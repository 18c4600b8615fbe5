#include "engine/string/scan.h"
#include "tests/support/enginetest.h"

#include <bit>
#include <cmath>
#include <random>

namespace Vorn {

namespace {

std::u16string Wide(std::string_view text) {
    return {text.begin(), text.end()};
}

// The bits of the stored value, or nothing.
std::optional<std::uint32_t> ScannedFloat(std::string_view text) {
    float value = 0.0f;
    const std::u16string wide = Wide(text);
    return Scanner(wide.c_str()).Float(value).Stored() == 1 ? std::optional(std::bit_cast<std::uint32_t>(value))
                                                            : std::nullopt;
}

void ExpectLikeLibrary(const std::string& text) {
    const std::u16string wide = Wide(text);
    double real = 0.0;
    ASSERT_EQ(Scanner(wide.c_str()).Double(real).Stored(), 1) << text;
    ASSERT_EQ(std::bit_cast<std::uint64_t>(real), std::bit_cast<std::uint64_t>(std::strtod(text.c_str(), nullptr)))
        << text;
    ASSERT_EQ(ScannedFloat(text), std::bit_cast<std::uint32_t>(std::strtof(text.c_str(), nullptr))) << text;
}

TEST(Scan, Integers) {
    struct Row {
        const char16_t* text;
        std::optional<std::int32_t> value;
    };
    const Row rows[] = {
        {u"3000000000", -1294967296},
        {u"4294967296", 0},
        {u"-2147483649", 2147483647},
        {u"12abc", 12},
        {u"1.9", 1},
        {u"0x10", 0},
        {u" \t\r\n\v\f-5", -5},
        {u"+7", 7},
        {u"00000000000000000000000000000000000012", 12},
        {u"99999999999999999999999999999999", -1},
        {u"- 5", {}},
        {u"+-5", {}},
        {u"", {}},
        {u"abc", {}},
        {u"\u00A05", {}},
        {u"\u0665", {}},
        {u"-", {}},
    };
    for (const Row& row : rows) {
        std::int32_t value = 77;
        const bool stored = Scanner(row.text).Int(value).Stored() == 1;
        EXPECT_EQ(stored ? std::optional(value) : std::nullopt, row.value) << Utf8(row.text);
        EXPECT_TRUE(stored || value == 77);
    }
    std::int64_t large = 0;
    Scanner(u"-9223372036854775809").Int64(large);
    EXPECT_EQ(large, INT64_MAX);
}

TEST(Scan, Hexadecimal) {
    struct Row {
        const char16_t* text;
        std::optional<std::uint32_t> value;
    };
    const Row rows[] = {
        {u"ffff0000", 0xFFFF0000},
        {u"FFff0000 tail", 0xFFFF0000},
        {u"0xAb", 0xAB},
        {u"0XaB", 0xAB},
        {u"0x", 0},
        {u"0xg", 0},
        {u"-1", 0xFFFFFFFF},
        {u"+0x10", 16},
        {u"123456789", 0x23456789},
        {u" 7", 7},
        {u"-0x1", 0xFFFFFFFF},
        {u"x1", {}},
        {u"g", {}},
        {u"", {}},
        {u"- 1", {}},
        {u"\u0661", {}},
    };
    for (const Row& row : rows) {
        std::uint32_t value = 0;
        const bool stored = Scanner(row.text).Hex(value).Stored() == 1;
        EXPECT_EQ(stored ? std::optional(value) : std::nullopt, row.value) << Utf8(row.text);
    }
}

TEST(Scan, FloatGrammar) {
    struct Row {
        const char* text;
        std::optional<std::uint32_t> bits;
    };
    constexpr std::uint32_t kOne = 0x3F800000;
    constexpr std::uint32_t kInfinity = 0x7F800000;
    constexpr std::uint32_t kMinus = 0x80000000;
    const Row rows[] = {
        {"1e", kOne},
        {"1e+", kOne},
        {"1E-x", kOne},
        {"1,5", kOne},
        {"5.", 0x40A00000},
        {".5", 0x3F000000},
        {"0x10", 0},
        {"+1", kOne},
        {" \t1", kOne},
        {"1e0", kOne},
        {"10e-1", kOne},
        {"1.0.0", kOne},
        {"-0", kMinus},
        {"1e50", kInfinity},
        {"-1e50", kInfinity | kMinus},
        {"1e-60", 0},
        {"-1e-60", kMinus},
        {"0e99999999999", 0},
        {"1e99999999999999999999", kInfinity},
        {"1e-99999999999999999999", 0},
        {"0.0000001e99999999999", kInfinity},
        {"inf", kInfinity},
        {"-INF", kInfinity | kMinus},
        {"+Infinity", kInfinity},
        {"infinit", kInfinity},
        {"nan", 0x7FC00000},
        {"-NaN", 0xFFC00000},
        {"nan(7)", 0x7FC00000},
        {"-", {}},
        {".", {}},
        {"", {}},
        {"e5", {}},
        {"-.e1", {}},
        {"in", {}},
        {"- 1", {}},
        {"+-1", {}},
    };
    for (const Row& row : rows) {
        EXPECT_EQ(ScannedFloat(row.text), row.bits) << row.text;
    }
}

TEST(Scan, StopsBehindTheNumber) {
    struct Row {
        const char16_t* text;
        char16_t next;
    };
    const Row rows[] = {{u"1.5e 9", u'e'}, {u"1.25e+3, 9", u','}, {u"7., 9", u','}, {u"1- 9", u'-'},
                        {u"infi 9", u'i'}, {u"nan( 9", u'('},     {u"0x 9", u'x'}};
    for (const Row& row : rows) {
        float value = 0.0f;
        std::int32_t behind = 0;
        EXPECT_EQ(Scanner(row.text).Float(value).Literal(row.next).Int(behind).Stored(), 2) << Utf8(row.text);
    }
}

TEST(Scan, HardFloatsEqualTheLibrary) {
    // 19 and more digits, exact powers of two, halves and their neighbours, the limits of the range.
    const char* texts[] = {"9007199254740993",
                           "9999999999999999999",
                           "99999999999999999999",
                           "0.1",
                           "16777217",
                           "16777217.0000000000000000001",
                           "33554434.000000001",
                           "1.00000005960464477539062500",
                           "1.000000059604644775390624",
                           "1.0000000596046447753906250001",
                           "3.4028235e38",
                           "340282356779733661637539395458142568447",
                           "340282356779733661637539395458142568448",
                           "1.17549435e-38",
                           "1.1754942e-38",
                           "1.40129846e-45",
                           "7.0064923216240853e-46",
                           "7.0064923216240854e-46",
                           "7.00649232162408535461864791644958e-46",
                           "1e22",
                           "1e23",
                           "8e-45",
                           "0.000000000000000000000000000000000000000000001",
                           "123456789012345678901234567890e-20",
                           "2.2250738585072011e-308",
                           "1.7976931348623158e308",
                           "4.9406564584124654e-324"};
    for (const char* text : texts) {
        ExpectLikeLibrary(text);
        ExpectLikeLibrary("-" + std::string(text));
    }
}

TEST(Scan, RandomFloatsEqualTheLibrary) {
    const auto seed = std::random_device()();
    SCOPED_TRACE(testing::Message() << "seed " << seed);
    std::mt19937 random(seed);
    for (int i = 0; i < 60000 && !testing::Test::HasFatalFailure(); ++i) {
        std::string text;
        if (i % 3 == 0) {
            // The middle between two floats exactly, or a little off it.
            const auto bits = static_cast<std::uint32_t>(random() % 0x7F000000);
            const double middle = (static_cast<double>(std::bit_cast<float>(bits)) +
                                   static_cast<double>(std::bit_cast<float>(bits + 1))) /
                                  2;
            char digits[400];
            std::snprintf(digits, sizeof digits, i % 2 == 0 ? "%.200f" : "%.180e", middle);
            text = digits;
            text += i % 4 == 0 && i % 2 == 0 ? "1" : "";
        } else {
            const std::size_t length = 1 + random() % 24;
            for (std::size_t digit = 0; digit < length; ++digit) {
                text += static_cast<char>('0' + random() % 10);
            }
            if (i % 3 == 1) {
                text.insert(random() % (length + 1), ".");
            }
            if (random() % 4 == 0) {
                text += "e" + std::to_string(static_cast<int>(random() % 120) - 60);
            }
        }
        ExpectLikeLibrary(text);
    }
}

} // namespace

} // namespace Vorn
