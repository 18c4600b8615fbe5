#include "engine/archive/namelist.h"

#include <gtest/gtest.h>

namespace Vorn {

TEST(NameList, NumbersNamesInTheOrderOfTheirFirstMention) {
    NameList names;
    EXPECT_EQ(names.Resolve(u"Wardens"), 0);
    EXPECT_EQ(names.Resolve(u"wardens"), 1);
    EXPECT_EQ(names.Resolve(u"Wardens"), 0);
    EXPECT_EQ(names.Resolve(u""), NameList::kNone);
    EXPECT_EQ(names.Resolve(u"Drifters"), 2);
    EXPECT_EQ(names.GetText(1), u"wardens");
    EXPECT_EQ(names.GetText(2), u"Drifters");
}

TEST(NameList, FindsEachOfManyNames) {
    NameList names;
    const auto nameOf = [](int i) { return std::u16string(1 + i % 7, u'n') + static_cast<char16_t>(0x100 + i); };
    for (int round = 0; round < 2; ++round) {
        for (int i = 0; i < 5000; ++i) {
            ASSERT_EQ(names.Resolve(nameOf(i)), i);
        }
    }
    EXPECT_EQ(names.GetText(4999), nameOf(4999));
}

TEST(NameList, HasNoTextOutsideTheList) {
    NameList names;
    names.Resolve(u"Wardens");
    for (const std::int32_t index : {NameList::kNone, 1, 2147483647}) {
        EXPECT_FALSE(names.IsIndex(index));
        EXPECT_EQ(names.GetText(index), u"");
    }
}

} // namespace Vorn
