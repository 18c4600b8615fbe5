#include "tests/support/enginetest.h"

namespace Vorn {

namespace {

class FormatTest : public EngineTest {
protected:
    template <class... Arguments>
    static std::string Formatted(const char16_t* format, const Arguments&... arguments) {
        FixedString<400> text;
        Format(text.Buffer(), format, arguments...);
        return Utf8(text.View());
    }
};

TEST_F(FormatTest, ConvertsEachKind) {
    EXPECT_EQ(Formatted(u"%s|%s|%s", u"wide", "narrow", FixedString<8>(u"fixed")), "wide|narrow|fixed");
    EXPECT_EQ(Formatted(u"%d %d %d", 0, -2147483647 - 1, 3000000000u), "0 -2147483648 -1294967296");
    EXPECT_EQ(Formatted(u"%x %x", 0, 0xFFFF0000u), "0 ffff0000");
    EXPECT_EQ(Formatted(u"%lld %I64d", INT64_MIN, INT64_MAX), "-9223372036854775808 9223372036854775807");
    EXPECT_EQ(Formatted(u"%f %.2f", 0.1, 2.005), "0.100000 2.00");
    EXPECT_EQ(Formatted(u"%f", -1.7976931348623157e308).size(), 1u + 309 + 7);
    EXPECT_EQ(Formatted(u"[%-*s][%-*s]", 5, u"ab", 1, u"ab"), "[ab   ][ab]");
    EXPECT_EQ(Formatted(u"%p", reinterpret_cast<const void*>(0xBEEF)), "0xbeef");
    EXPECT_EQ(Formatted(u"100%% %", 1), "100% %");
}

TEST_F(FormatTest, NeverReadsAnArgumentThatIsNotThere) {
    EXPECT_EQ(Formatted(u"%s %d"), "%s %d");
    EXPECT_EQ(Formatted(u"%d %f %s", u"text", 1), "%d %f text");
    EXPECT_EQ(Formatted(u"%n%-*s", 1), "%n%-*s");
}

TEST_F(FormatTest, CutsAtTheCapacity) {
    FixedString<6> text;
    Format(text.Buffer(), u"%s%d", u"abc", 12);
    EXPECT_EQ(text.View(), u"abc12");
    EXPECT_EQ(TakeReports(), Reports());
    Format(text.Buffer(), u"%s%d", u"abc", 123);
    EXPECT_EQ(text.View(), u"abc12");
    EXPECT_EQ(TakeReports(), Reports({Check("! FAILED( hr )")}));
}

} // namespace

} // namespace Vorn
