#include "engine/string/digits.h"
#include "engine/string/numbertext.h"
#include "engine/string/scan.h"

#include <gtest/gtest.h>

#include <cstdio>
#include <random>

namespace Vorn {

namespace {

using namespace Digits;

// The examples of the comments.
static_assert(SwapBytes(0x0102030405060708) == 0x0807060504030201);
static_assert(BeyondNine(0x051E0201) == 0x00800000 && BytesBelow(0x00800000) == 2);
static_assert(Sum(0x0409010000000000) == 194);
static_assert(SumOfLanes(0x0004000900010000) == 194);
static_assert(HasLaneBeyondNine(0x0001000A00020003) && !HasLaneBeyondNine(0x0009000900090009));
static_assert(IsMiddleOfFloats(16777217.0) && !IsMiddleOfFloats(16777217.5) && !IsMiddleOfFloats(16777218.0));
static_assert(PlainNumber::MagnitudeBits(-1.0f) == 0x3F800000 && PlainNumber::MagnitudeBits(1.0f) == 0x3F800000);
static_assert(PlainNumber::Rounded(2.5) == 2 && PlainNumber::Rounded(3.5) == 4 && PlainNumber::Rounded(2.75) == 3);

TEST(Digits, AreReadEightAtATime) {
    EXPECT_EQ(WordAt("12345678"), 0x3837363534333231U);
    EXPECT_EQ(FromText(WordAt("12.5    ")) & 0xFFFFFFFF, 0x051E0201U);
    std::mt19937 random(5);
    for (int i = 0; i < 1000; ++i) {
        const auto number = static_cast<std::uint32_t>(random() % 100000000);
        char text[16];
        std::snprintf(text, sizeof text, "%08u", number);
        const std::uint64_t digits = FromText(WordAt(text));
        EXPECT_EQ(Sum(digits), number);
        EXPECT_EQ(BeyondNine(digits), 0U);
    }
}

// Each sign at each place of a number is found, the first of two too.
TEST(Digits, OtherSignsAreFound) {
    for (std::size_t at = 0; at < 8; ++at) {
        for (int sign = 0; sign < 256; ++sign) {
            char text[] = "90909090:";
            text[at] = static_cast<char>(sign);
            const bool isDigit = sign >= '0' && sign <= '9';
            const std::uint64_t beyond = BeyondNine(FromText(WordAt(text)));
            EXPECT_EQ(isDigit ? 8 : at, beyond == 0 ? 8 : BytesBelow(beyond)) << sign << " at " << at;
            char fixed[] = "3.141592";
            fixed[at] = static_cast<char>(sign);
            EXPECT_EQ(ArePointAndSix(WordAt(fixed) ^ kPointAndSix), at == 1 ? sign == '.' : isDigit)
                << sign << " at " << at;
        }
    }
    EXPECT_EQ(Millionths(WordAt("3.141592") ^ kPointAndSix), 3141592U);
    for (std::uint64_t unit = 0; unit < 0x10000; ++unit) {
        for (int lane = 0; lane < 64; lane += 16) {
            EXPECT_EQ(HasLaneBeyondNine(unit << lane), unit > 9) << unit;
        }
    }
}

} // namespace

} // namespace Vorn
