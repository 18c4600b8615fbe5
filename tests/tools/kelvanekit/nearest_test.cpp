#include "tools/kelvanekit/findings/nearest.h"

#include <gtest/gtest.h>

namespace Vorn {

namespace {

TEST(NearestTest, EditsAreCountedUpToTheLimit) {
    struct Case {
        std::u16string_view left;
        std::u16string_view right;
        int edits;
    };
    constexpr Case kCases[] = {
        {u"", u"", 0},           {u"", u"abc", 3},      {u"hull", u"hull", 0},      {u"hull", u"hul", 1},
        {u"hull", u"shull", 1},  {u"hull", u"hill", 1}, {u"hull", u"uhll", 1},      {u"hull", u"Hull", 1},
        {u"width", u"Widht", 2}, {u"abcd", u"badc", 2}, {u"kitten", u"sitting", 3}, {u"abc", u"cab", 2},
    };
    for (const Case& c : kCases) {
        EXPECT_EQ(EditDistance(c.left, c.right, 9), c.edits) << testing::PrintToString(std::u16string(c.left));
        EXPECT_EQ(EditDistance(c.right, c.left, 9), c.edits);
        EXPECT_EQ(EditDistance(c.left, c.right, c.edits), c.edits);
        if (c.edits > 0) {
            EXPECT_EQ(EditDistance(c.left, c.right, c.edits - 1), c.edits);
        }
    }
}

TEST(NearestTest, LongTextsAreComparedByTheirBeginning) {
    const std::u16string text(100000, u'a');
    EXPECT_EQ(EditDistance(text, text + u"b", 5), 0);
    EXPECT_EQ(EditDistance(text, u"b" + text, 5), 1);
}

TEST(NearestTest, TheCaseCountsLeastAndTheFirstWins) {
    constexpr std::u16string_view kTexts[] = {u"Heavy", u"Light", u"Lights", u"Raider", u"Rader"};
    EXPECT_EQ(NearestOf(u"light", kTexts), 1u);
    EXPECT_EQ(NearestOf(u"LIGHTS", kTexts), 2u);
    EXPECT_EQ(NearestOf(u"Haevy", kTexts), 0u);
    EXPECT_EQ(NearestOf(u"Raider", kTexts), 3u);
    EXPECT_EQ(NearestOf(u"Raidr", kTexts), 3u);
    EXPECT_EQ(NearestOf(u"Enormous", kTexts), kNoneNear);
    EXPECT_EQ(NearestOf(u"", kTexts), kNoneNear);
    EXPECT_EQ(NearestOf(u"Light", {}), kNoneNear);
}

} // namespace

} // namespace Vorn
