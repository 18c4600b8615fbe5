#include "engine/string/numbertext.h"
#include "tests/support/enginetest.h"

#include <bit>
#include <charconv>
#include <limits>
#include <random>

namespace Vorn {

namespace {

template <class Put, class... Arguments>
std::string TextOf(Put put, Arguments... arguments) {
    char digits[kNumberTextCapacity];
    return {digits, put(digits, arguments...)};
}

std::string LibraryFixed(double value, int places) {
    char digits[kNumberTextCapacity];
    return {digits, std::to_chars(digits, std::end(digits), value, std::chars_format::fixed, places).ptr};
}

TEST(NumberText, FixedOddities) {
    struct Row {
        float value;
        const char* text;
    };
    constexpr float kInfinity = std::numeric_limits<float>::infinity();
    const Row rows[] = {
        {std::numeric_limits<float>::max(), "340282346638528859811704183484516925440.000000"},
        {std::numeric_limits<float>::denorm_min(), "0.000000"},
        {-1e-30f, "-0.000000"},
        {-0.0f, "-0.000000"},
        {0.5f / 64 / 64 / 64, "0.000002"},
        {kInfinity, "inf"},
        {-kInfinity, "-inf"},
        {std::bit_cast<float>(0x7FC00000), "nan"},
        {std::bit_cast<float>(0xFF800001), "-nan"},
        // The last place is a tie here, which is rounded to the even digit.
        {0.00048828125f, "0.000488"},
        {8388607.5f, "8388607.500000"},
        {16777216.0f, "16777216.000000"},
    };
    for (const Row& row : rows) {
        EXPECT_EQ(TextOf(PutFixed6, row.value), row.text);
        EXPECT_EQ(TextOf(PutFixed, static_cast<double>(row.value), 6), row.text);
    }
    EXPECT_EQ(TextOf(PutFixed, 2.5, 0), "2");
    EXPECT_EQ(TextOf(PutFixed, -0.125, 2), "-0.12");
}

TEST(NumberText, FixedEqualsTheLibrary) {
    const auto seed = std::random_device()();
    SCOPED_TRACE(testing::Message() << "seed " << seed);
    std::mt19937 random(seed);
    for (int i = 0; i < 300000; ++i) {
        // Half of them of any size, the others in the range of the fast path, with ties among them.
        auto bits = static_cast<std::uint32_t>(random());
        if (i % 2 == 0) {
            bits = (bits & 0x807FFFFF) | static_cast<std::uint32_t>(0x60 + random() % 0x3A) << 23;
            bits &= i % 8 == 0 ? 0xFFFFF000 : 0xFFFFFFFF;
        }
        const auto value = std::bit_cast<float>(bits);
        if (value == value) {
            ASSERT_EQ(TextOf(PutFixed6, value), LibraryFixed(static_cast<double>(value), 6)) << std::hex << bits;
        }
    }
}

TEST(NumberText, Integers) {
    const std::int64_t values[] = {
        0, 1, 9, 10, 99, 100, 12345, 999999999, 1000000000, 4294967295, 4294967296, 1000000000000000000, INT64_MAX};
    for (const std::int64_t value : values) {
        EXPECT_EQ(TextOf(PutInt64, value), std::to_string(value));
        EXPECT_EQ(TextOf(PutInt64, -value), std::to_string(-value));
        EXPECT_EQ(TextOf(PutInt, static_cast<std::int32_t>(value)), std::to_string(static_cast<std::int32_t>(value)));
        EXPECT_EQ(TextOf(PutHex64, static_cast<std::uint64_t>(value)), [value] {
            char digits[16];
            return std::string(digits, std::to_chars(digits, std::end(digits), value, 16).ptr);
        }());
    }
    EXPECT_EQ(TextOf(PutInt, INT32_MIN), "-2147483648");
    EXPECT_EQ(TextOf(PutInt64, INT64_MIN), "-9223372036854775808");
}

} // namespace

} // namespace Vorn
