#include "engine/archive/further/bitstreamarchive.h"
#include "engine/string/fixedstring.h"
#include "tests/support/enginetest.h"

namespace Vorn {

namespace {

using BitStreamArchiveTest = EngineTest;

TEST_F(BitStreamArchiveTest, ValuesLieFromTheLowestBitUpward) {
    BitStreamArchive archive;
    archive.Write(u"", std::uint32_t{5}, 3);
    archive.Write(u"", Bool(true));
    archive.Write(u"", u"A", 9);
    EXPECT_EQ(archive.GetStream(), (std::vector<unsigned char>{0x1D, 0x10, 0x04, 0, 0, 0}));

    BitStreamArchive matrices;
    matrices.Write(u"", Matrix33());
    matrices.Write(u"", Matrix44());
    EXPECT_EQ(matrices.GetStream().size(), 4u * (9 + 16));
}

TEST_F(BitStreamArchiveTest, WideNumbersAreNotMeantForIt) {
    BitStreamArchive archive;
    archive.Write(u"", std::int64_t{-2});
    archive.Write(u"", 0.1);
    archive.Rewind();
    std::int64_t integer = 0;
    double real = 0;
    archive.Read(u"", integer);
    archive.Read(u"", real);
    EXPECT_EQ(integer, -2);
    EXPECT_EQ(real, 0.1);
    EXPECT_EQ(archive.GetStream()[0], 0xFE);
    EXPECT_EQ(TakeReports(), Reports(4, Check("false")));
}

TEST_F(BitStreamArchiveTest, BitCountsOutOfRange) {
    BitStreamArchive archive;
    archive.Write(u"", std::uint32_t{9}, 3);
    archive.Write(u"", std::uint32_t{0}, 0);
    archive.Write(u"", std::uint32_t{0}, -1);
    archive.Write(u"", std::uint32_t{0xFFFFFFFF}, 40);
    archive.Write(u"", std::uint32_t{31}, 5);
    const std::string fits = Check("(unsigned int)(*data) <= CreateLargestUInt(bitCount)");
    const std::string positive = Check("bitCount > 0");
    const std::string wide = Check("(unsigned int)(bitCount) <= (sizeof(unsigned int) * 8U)");
    EXPECT_EQ(TakeReports(), (Reports{fits, positive, positive, wide, wide}));
    EXPECT_EQ(archive.GetStream(), (std::vector<unsigned char>{0xF9, 0xFF, 0xFF, 0xFF, 0xFF}));

    archive.Rewind();
    std::uint32_t value = 7;
    archive.Read(u"", value, -1);
    EXPECT_EQ(value, 0u);
    archive.Read(u"", value, 3);
    EXPECT_EQ(value, 1u);
    archive.Read(u"", value, 40);
    EXPECT_EQ(value, 0xFFFFFFFF);
}

TEST_F(BitStreamArchiveTest, LongTexts) {
    const std::u16string text(300, u'x');
    BitStreamArchive archive;
    archive.Write(u"", text.c_str(), 400);
    archive.Write(u"", std::int32_t{-7});
    EXPECT_EQ(TakeReports(), Reports{Check("(unsigned int)(*data) <= CreateLargestUInt(bitCount)")});
    EXPECT_EQ(archive.GetStream().size(), 1u + 255 * 4 + 4);

    archive.Rewind();
    FixedString<255> buffer;
    std::int32_t behind = 0;
    archive.Read(u"", buffer.Buffer().m_Buffer, 255);
    archive.Read(u"", behind);
    EXPECT_EQ(buffer.View(), text.substr(0, 254));
    EXPECT_EQ(behind, -7);
    EXPECT_EQ(TakeReports(), Reports{Check("stringLength < bufferSize")});
}

TEST_F(BitStreamArchiveTest, ReadsPastTheEnd) {
    BitStreamArchive archive(std::vector<unsigned char>{0xFF});
    std::uint32_t value = 0;
    archive.Read(u"", value);
    EXPECT_EQ(value, 0xFFu);
    EXPECT_EQ(TakeReports(), Reports(3, Check("currentPos <= stream.Size()")));
    archive.Write(u"", Bool(true));
    EXPECT_EQ(archive.GetStream(), (std::vector<unsigned char>{0xFF, 0, 0, 0, 1}));
}

} // namespace

} // namespace Vorn
