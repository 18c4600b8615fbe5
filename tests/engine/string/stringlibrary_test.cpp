#include "tests/support/enginetest.h"

namespace Vorn {

namespace {

class StringLibraryTest : public EngineTest {};

TEST_F(StringLibraryTest, ComparesByUnsignedUnits) {
    EXPECT_EQ(Compare(u"abc", u"abd"), -1);
    EXPECT_EQ(Compare(u"abc", u"ab"), 1);
    EXPECT_EQ(Compare(u"abc", u"abc"), 0);
    EXPECT_EQ(Compare(u"a", u"\xFFFF"), -1);
    EXPECT_EQ(TakeReports(), Reports());
    EXPECT_EQ(Compare(nullptr, u"a"), -1);
    EXPECT_EQ(Compare(nullptr, nullptr), 0);
    EXPECT_EQ(TakeReports(), Reports({Check("s1 != NULL"), Check("s1 != NULL"), Check("s2 != NULL")}));
}

TEST_F(StringLibraryTest, CopyAndAppendCutAtTheCapacity) {
    const std::string failed = Check("! FAILED( hr )");
    struct Row {
        const char16_t* first;
        const char16_t* appended;
        const char16_t* result;
        Reports reports;
    };
    const Row rows[] = {
        {u"abcd", u"e", u"abcde", {}},
        {u"abcdef", u"", u"abcde", {Check("GetLength( source ) < destination.m_BufferSize"), failed}},
        {u"abc",
         u"def",
         u"abcde",
         {Check("GetLength( destination.m_Buffer ) + GetLength( source ) < destination.m_BufferSize"), failed}},
        {u"", u"", u"", {}},
    };
    for (const Row& row : rows) {
        FixedString<6> text;
        Copy(text.Buffer(), row.first);
        Append(text.Buffer(), row.appended);
        EXPECT_EQ(Utf8(text.View()), Utf8(row.result));
        EXPECT_EQ(TakeReports(), row.reports);
    }
}

TEST_F(StringLibraryTest, ChecksWhereToCopy) {
    FixedString<6> text(u"abc");
    Copy(text.Buffer(), text.View());
    Append(text.Buffer(), text.View().substr(0, 1));
    EXPECT_EQ(TakeReports(), Reports(2, Check("destination.m_Buffer != source")));
    EXPECT_EQ(text.View(), u"abca");
    Copy({nullptr, 0}, u"");
    EXPECT_EQ(TakeReports(), Reports({Check("destination.m_BufferSize >= 1")}));
    const FixedString<6> fromNull(nullptr);
    EXPECT_EQ(TakeReports(), Reports({Check("s != NULL")}));
    EXPECT_TRUE(fromNull.IsEmpty());
}

TEST_F(StringLibraryTest, CopiesPartsInsideTheSource) {
    FixedString<4> text;
    CopyPart(text.Buffer(), u"abcdef", 2, 3);
    EXPECT_EQ(text.View(), u"cde");
    CopyPart(text.Buffer(), u"abcdef", 5, 3);
    EXPECT_EQ(text.View(), u"f");
    CopyPart(text.Buffer(), u"abcdef", 1, 0);
    EXPECT_EQ(text.View(), u"");
    CopyPart(text.Buffer(), u"abcdef", 5, 3);
    CopyPart(text.Buffer(), u"abc", 9, 1);
    EXPECT_EQ(text.View(), u"");
    EXPECT_EQ(TakeReports(), Reports());
    CopyPart(text.Buffer(), u"abcdef", -1, 4);
    EXPECT_EQ(text.View(), u"abc");
    CopyPart(text.Buffer(), u"abcdef", 0, -2);
    EXPECT_EQ(text.View(), u"");
    EXPECT_EQ(TakeReports(),
              Reports({Check("iFirst >= 0"), Check("nCount < destination.m_BufferSize"), Check("nCount >= 0")}));
}

} // namespace

} // namespace Vorn
