#include "engine/file/path.h"
#include "tests/support/enginetest.h"

namespace Vorn {

namespace {

class FileSystemTest : public FileTest {
protected:
    File* Open(std::string_view name, FileAccess access, FileTranslation translation = FileTranslation::Binary) {
        return core->fileSystem.Open(NameIn(name), access, translation);
    }
};

TEST_F(FileSystemTest, WritesTextWithMarkAndLineEnds) {
    File* file = Open("text", FileAccess::Write, FileTranslation::Text);
    file->Print(u"%s\n", u"Größe");
    file->PrintText(u"a\rb\n\n\xD800|\U0001F680");
    file->PrintText(u"%s \x1A\n");
    core->fileSystem.Close(file);
    EXPECT_EQ(ReadBytes(folder.Path() / "text"), "\xEF\xBB\xBFGr\xC3\xB6\xC3\x9F"
                                                 "e\r\na\rb\r\n\r\n\xEF\xBF\xBD|\xF0\x9F\x9A\x80%s \x1A\r\n");
    EXPECT_EQ(core->fileSystem.OpenCount(), 0);
}

// Pieces and blocks of the output, with surrogate pairs and line feeds across their borders.
TEST_F(FileSystemTest, WritesLongText) {
    for (std::size_t shift = 0; shift < 6; ++shift) {
        std::u16string text(shift, u'x');
        std::string bytes = "\xEF\xBB\xBF" + std::string(shift, 'x');
        for (int i = 0; i < 10000; ++i) {
            text += i % 3 == 0 ? u"\U0001F680" : i % 3 == 1 ? u"\n" : u"abc";
            bytes += i % 3 == 0 ? "\xF0\x9F\x9A\x80" : i % 3 == 1 ? "\r\n" : "abc";
        }
        File* file = Open("text", FileAccess::Write, FileTranslation::Text);
        file->PrintText(text);
        core->fileSystem.Close(file);
        EXPECT_TRUE(ReadBytes(folder.Path() / "text") == bytes) << shift;
    }
}

TEST_F(FileSystemTest, CountsWholeElements) {
    Put("five", "12345");
    File* file = Open("five", FileAccess::Read);
    std::uint16_t elements[3] = {};
    EXPECT_EQ(file->Read(elements, sizeof elements[0], 3), 2);
    EXPECT_EQ(file->Read(elements, 1, 1), 0) << "the partial element is gone";
    core->fileSystem.Close(file);
    const std::string name = Utf8(NameIn("five"));
    EXPECT_EQ(TakeReports(),
              Reports({"Failed to Read File '" + name + "'. desired read bytes = 3, actual read bytes = 2.\n",
                       "Failed to Read File '" + name + "'. desired read bytes = 1, actual read bytes = 0.\n"}));
}

TEST_F(FileSystemTest, LargeWritesAndReadsPassTheBuffer) {
    std::string bytes(3 * kFileBlock + 7, '\0');
    std::generate(bytes.begin(), bytes.end(), [n = 0]() mutable { return static_cast<char>(n++ * 31 >> 3); });
    File* file = Open("large", FileAccess::Write);
    file->Write(bytes.data(), 1, 5);
    file->Write(bytes.data() + 5, 1, static_cast<int>(bytes.size()) - 5);
    core->fileSystem.Close(file);
    EXPECT_EQ(ReadBytes(folder.Path() / "large"), bytes);
    std::string back(bytes.size(), '\0');
    file = Open("large", FileAccess::Read);
    EXPECT_EQ(file->Read(back.data(), 1, 9), 9);
    EXPECT_EQ(file->Read(back.data() + 9, 1, static_cast<int>(back.size()) - 9), static_cast<int>(back.size()) - 9);
    core->fileSystem.Close(file);
    EXPECT_TRUE(back == bytes);
}

TEST_F(FileSystemTest, IndentsLines) {
    File* file = Open("lines", FileAccess::Write, FileTranslation::Text);
    std::string bytes = "\xEF\xBB\xBF";
    for (const int tabs : {0, 20, -1}) {
        for (int i = 0; i < 20000; ++i) {
            char* out = file->BeginLine(tabs);
            std::memcpy(out, "line\r\n", 6);
            file->CommitLine(out + 6);
            bytes += std::string(static_cast<std::size_t>(std::max(tabs, 0)), '\t') + "line\r\n";
        }
    }
    core->fileSystem.Close(file);
    EXPECT_TRUE(ReadBytes(folder.Path() / "lines") == bytes);
}

TEST_F(FileSystemTest, FilesAreReadOrWritten) {
    Put("file", "12345");
    File* file = Open("file", FileAccess::Read);
    file->Write("x", 1, 1);
    EXPECT_EQ(TakeReports(), Reports({Check("fileWriteResult == count")}));
    core->fileSystem.Close(file);
    file = Open("file", FileAccess::Write);
    char byte = 'y';
    EXPECT_EQ(file->TryRead(&byte, 1, 1), 0);
    EXPECT_EQ(byte, 'y');
    core->fileSystem.Close(file);
    EXPECT_EQ(ReadBytes(folder.Path() / "file"), "");
}

TEST_F(FileSystemTest, ReportsWhatDoesNotOpen) {
    EXPECT_EQ(Open("missing", FileAccess::Read), nullptr);
    EXPECT_EQ(Open(".", FileAccess::Read), nullptr) << "a directory";
    EXPECT_EQ(Open("no/where", FileAccess::Write), nullptr);
    const auto failure = [&](const char* name) { return "Failed to Open File: '" + Utf8(NameIn(name)) + "'\n"; };
    EXPECT_EQ(TakeReports(), Reports({failure("missing"), failure("."), failure("no/where")}));
    Put("file", "");
    EXPECT_TRUE(core->fileSystem.Exists(NameIn("file")));
    EXPECT_FALSE(core->fileSystem.Exists(NameIn("missing")));
    EXPECT_FALSE(core->fileSystem.Exists(NameIn(".")));
}

TEST_F(FileSystemTest, CutsLongNamesInReportsOnly) {
    Put("file", "");
    File* file = core->fileSystem.Open(NameIn("") + std::u16string(300, u'/') + u"file", FileAccess::Read,
                                       FileTranslation::Binary);
    ASSERT_NE(file, nullptr);
    EXPECT_EQ(file->GetName().View().size(), 255u);
    core->fileSystem.Close(file);
    EXPECT_EQ(TakeReports(),
              Reports({Check("GetLength( source ) < destination.m_BufferSize"), Check("! FAILED( hr )")}));
}

TEST(Path, SplitsTheSameEverywhere) {
    struct Row {
        const char16_t* path;
        PathParts parts;
    };
    const Row rows[] = {
        {u"C:\\Data/Mesh\\ship.v2.mesh", {u"C:", u"\\Data/Mesh\\", u"ship.v2", u".mesh"}},
        {u"ship", {u"", u"", u"ship", u""}},
        {u"a.b/ship", {u"", u"a.b/", u"ship", u""}},
        {u"/x/.hidden", {u"", u"/x/", u"", u".hidden"}},
        {u"dir/", {u"", u"dir/", u"", u""}},
        {u"c:ship.", {u"c:", u"", u"ship", u"."}},
        {u"", {}},
    };
    for (const Row& row : rows) {
        const PathParts parts = SplitPath(row.path);
        EXPECT_EQ(parts.drive, row.parts.drive) << Utf8(row.path);
        EXPECT_EQ(parts.folder, row.parts.folder) << Utf8(row.path);
        EXPECT_EQ(parts.stem, row.parts.stem) << Utf8(row.path);
        EXPECT_EQ(parts.extension, row.parts.extension) << Utf8(row.path);
    }
    EXPECT_EQ(FileNameOf(u"C:\\Data/ship.mesh"), u"ship.mesh");
}

} // namespace

} // namespace Vorn
