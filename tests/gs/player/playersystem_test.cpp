#include "gs/player/playersystem.h"

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

TEST(NameList, HasNoTextOutsideTheList) {
    NameList names;
    names.Resolve(u"Wardens");
    for (const std::int32_t index : {NameList::kNone, 1, 2147483647}) {
        EXPECT_FALSE(names.IsIndex(index));
        EXPECT_EQ(names.GetText(index), u"");
    }
}

} // namespace Vorn
