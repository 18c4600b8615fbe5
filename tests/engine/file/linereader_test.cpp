#include "tests/support/enginetest.h"

namespace Vorn {

namespace {

using Lines = std::vector<std::u16string>;

class LineReaderTest : public FileTest {
protected:
    // All lines of a file of these bytes, of `capacity` units each; terminators are not part of them.
    Lines ReadLines(std::string_view bytes, int capacity = 1024) {
        File* file = core->fileSystem.Open(Put("lines", bytes), FileAccess::Read, FileTranslation::Text);
        Lines lines;
        FixedString<1024> line(u"untouched");
        while (!file->GetString({line.Buffer().m_Buffer, capacity})) {
            lines.emplace_back(line.View());
        }
        EXPECT_EQ(line.View(), lines.empty() ? u"untouched" : lines.back()) << "kept at the end of the file";
        core->fileSystem.Close(file);
        return lines;
    }

    std::size_t TakeMissingLineEnds() {
        const Reports reports = TakeReports();
        for (const std::string& report : reports) {
            EXPECT_TRUE(report.starts_with("Missing \n in ")) << report;
        }
        return reports.size();
    }
};

std::string Utf16(std::u16string_view text, bool big) {
    std::string bytes;
    for (const char16_t unit : text) {
        const char high = static_cast<char>(unit >> 8);
        const char low = static_cast<char>(unit);
        bytes += big ? high : low;
        bytes += big ? low : high;
    }
    return bytes;
}

TEST_F(LineReaderTest, LineEndsAndOddUnits) {
    struct Row {
        std::string bytes;
        Lines lines;
        std::size_t missing;
    };
    const Row rows[] = {
        {"", {}, 0},
        {"\n", {u"\n"}, 0},
        {"a\r\nb\nc", {u"a\n", u"b\n", u"c"}, 1},
        {"a\rb\r\r\n\r", {u"a\rb\r\n", u"\r"}, 1},
        {"a\x1A"
         "b\n\xEF\xBF\xBF\n",
         {u"a\x1A"
          u"b\n",
          u"\xFFFF\n"},
         0},
        {"\xEF\xBB\xBF"
         "a\n\xEF\xBB\xBF"
         "b\n",
         {u"a\n", u"\xFEFF"
                  u"b\n"},
         0},
        {std::string("a\0b\nc\n\0d\n", 9), {u"a", u"c\n", u""}, 2},
        {"\xC3\xB6\xE6\xA8\x99\xF0\x9F\x9A\x80\n", {u"ö標\U0001F680\n"}, 0},
    };
    for (const Row& row : rows) {
        EXPECT_EQ(ReadLines(row.bytes), row.lines) << row.bytes;
        EXPECT_EQ(TakeMissingLineEnds(), row.missing) << row.bytes;
    }
}

TEST_F(LineReaderTest, EachMalformedPartIsOneReplacement) {
    struct Row {
        const char* bytes;
        const char16_t* line;
    };
    const Row rows[] = {
        {"\xED\xA0\x80\n", u"\xFFFD\xFFFD\xFFFD\n"},
        {"\xF0\x9F\x9A"
         "a\n",
         u"\xFFFD"
         u"a\n"},
        {"\xF0\x9F\n", u"\xFFFD\n"},
        {"\xE6\xA8\xE6\xA8\x99\n", u"\xFFFD標\n"},
        {"\xC0\xAF\xF5\x80\xFF\n", u"\xFFFD\xFFFD\xFFFD\xFFFD\xFFFD\n"},
        {"\xE0\x9F\x80\n", u"\xFFFD\xFFFD\xFFFD\n"},
        {"\x80\xBF\n", u"\xFFFD\xFFFD\n"},
    };
    for (const Row& row : rows) {
        EXPECT_EQ(ReadLines(row.bytes), Lines({row.line})) << row.bytes;
    }
    EXPECT_EQ(ReadLines("a\xC3"), Lines({u"a\xFFFD"}));
    EXPECT_EQ(TakeMissingLineEnds(), 1u);
}

TEST_F(LineReaderTest, MarksPickTheEncoding) {
    const std::u16string text = u"Größe\r\n\xD800標\U0001F680\r\nno end\r";
    const Lines lines = {u"Größe\n", u"\xD800標\U0001F680\n", u"no end\r"};
    for (const bool big : {false, true}) {
        EXPECT_EQ(ReadLines(Utf16(u"\xFEFF" + text, big)), lines);
        EXPECT_EQ(TakeMissingLineEnds(), 1u);
        EXPECT_EQ(ReadLines(Utf16(u"\xFEFF"
                                  u"a",
                                  big) +
                            "b"),
                  Lines({u"a\xFFFD"}));
        EXPECT_EQ(TakeMissingLineEnds(), 1u);
        EXPECT_EQ(ReadLines(Utf16(u"\xFEFF標\n", big)), Lines({u"標\n"})) << "no byte of it is 0 or above 127";
    }
}

// A capacity of 1024 is 1023 units with the line feed; the rest of a longer line is read as the next one.
TEST_F(LineReaderTest, CutsAtTheCapacity) {
    for (const char* lineEnd : {"\n", "\r\n"}) {
        EXPECT_EQ(ReadLines(std::string(1022, 'x') + lineEnd), Lines({std::u16string(1022, u'x') + u"\n"}));
        EXPECT_EQ(TakeMissingLineEnds(), 0u);
        EXPECT_EQ(ReadLines(std::string(1023, 'x') + lineEnd), Lines({std::u16string(1023, u'x'), u"\n"}));
        EXPECT_EQ(TakeMissingLineEnds(), 1u);
        EXPECT_EQ(ReadLines(std::string(1024, 'x') + lineEnd), Lines({std::u16string(1023, u'x'), u"x\n"}));
        EXPECT_EQ(TakeMissingLineEnds(), 1u);
    }
    // Counted in units, not bytes, so that a surrogate pair may be split.
    EXPECT_EQ(ReadLines("ab\xF0\x9F\x9A\x80"
                        "c\n",
                        4),
              Lines({u"ab\xD83D", u"\xDE80"
                                  u"c\n"}));
    EXPECT_EQ(TakeMissingLineEnds(), 1u);
    std::string wide;
    for (int i = 0; i < 1022; ++i) {
        wide += "\xE6\xA8\x99";
    }
    EXPECT_EQ(ReadLines(wide + "\r\n"), Lines({std::u16string(1022, u'標') + u"\n"}));
    EXPECT_EQ(TakeMissingLineEnds(), 0u);
}

// Lines, line ends and characters that cross the end of a block of the buffer are read correctly.
TEST_F(LineReaderTest, BlockBoundariesDoNotShow) {
    const std::string line = "0123456789\xC3\xB6\xE6\xA8\x99\xF0\x9F\x9A\x80\r\n";
    const std::u16string expected = u"0123456789ö標\U0001F680\n";
    for (const std::size_t block : {std::size_t{8192}, kFileBlock, 8192 + kFileBlock}) {
        for (std::size_t shift = 0; shift <= line.size(); ++shift) {
            // A first line of its own size moves all others over the end of the block.
            std::string bytes = std::string(shift, '.') + "\n";
            std::size_t count = 0;
            for (; bytes.size() < block + 2 * line.size(); ++count) {
                bytes += line;
            }
            const Lines lines = ReadLines(bytes);
            ASSERT_EQ(lines.size(), count + 1);
            ASSERT_EQ(std::count(lines.begin() + 1, lines.end(), expected), static_cast<std::ptrdiff_t>(count));
        }
    }
}

// A source that fails after its first bytes.
class FailingStore final : public FileStore {
public:
    std::unique_ptr<ByteStream> Open(std::u16string_view, FileAccess) override { return std::make_unique<Stream>(); }
    bool Exists(std::u16string_view) const override { return true; }

private:
    class Stream final : public ByteStream {
    public:
        std::ptrdiff_t Read(void* place, std::size_t) override {
            return isFirst ? (isFirst = false, std::string_view("one\ntw").copy(static_cast<char*>(place), 6)) : -1;
        }
        bool Write(const void*, std::size_t) override { return false; }
        bool Close() override { return true; }

    private:
        bool isFirst = true;
    };
};

TEST_F(LineReaderTest, AReadThatFailsEndsTheLinesWithAReport) {
    FailingStore store;
    FileSystem files(store);
    File* file = files.Open(u"broken", FileAccess::Read, FileTranslation::Text);
    FixedString<20> line;
    Lines lines;
    while (!file->GetString(line.Buffer())) {
        lines.emplace_back(line.View());
    }
    EXPECT_EQ(lines, (Lines{u"one\n", u"tw"}));
    const Reports reports = TakeReports();
    EXPECT_EQ(reports.back(), "File GetString - Error Encountered. [ File = broken ]\n");
    files.Close(file);
}

} // namespace

} // namespace Vorn
