#include "engine/string/utf8.h"
#include "tests/support/enginetest.h"

namespace Vorn {

namespace {

TEST(Utf8, NamesSurviveAnyBytes) {
    struct Row {
        std::string bytes;
        std::u16string name;
    };
    const Row rows[] = {
        {"plain", u"plain"},
        {"Gr\xC3\xB6\xC3\x9F"
         "e \xF0\x9F\x9A\x80",
         u"Größe \U0001F680"},
        {"a\xFF"
         "b\xC3",
         u"a\xDCFF"
         u"b\xDCC3"},
        {"\xED\xA0\x80", u"\xDCED\xDCA0\xDC80"},
        {"\xED\x9F\xBF\xF4\x8F\xBF\xBF", u"\xD7FF\U0010FFFF"},
        {"\xC0\x80\xF4\x90\x80\x80", u"\xDCC0\xDC80\xDCF4\xDC90\xDC80\xDC80"},
    };
    for (const Row& row : rows) {
        EXPECT_EQ(NameFromBytes(row.bytes), row.name);
        EXPECT_EQ(BytesFromName(row.name), row.bytes);
    }
}

TEST(Utf8, EncodesUnpairedSurrogatesAsReplacement) {
    EXPECT_EQ(Utf8(u"a\xD800"
                   u"b"),
              "a\xEF\xBF\xBD"
              "b");
    EXPECT_EQ(Utf8(u"\xDC00\xD800"), "\xEF\xBF\xBD\xEF\xBF\xBD");
    EXPECT_EQ(Utf8(u"\U00010000\U0010FFFF"), "\xF0\x90\x80\x80\xF4\x8F\xBF\xBF");
    EXPECT_EQ(Utf8(u"\x7F\x80\x7FF\x800\xFFFF"), "\x7F\xC2\x80\xDF\xBF\xE0\xA0\x80\xEF\xBF\xBF");
}

} // namespace

} // namespace Vorn
