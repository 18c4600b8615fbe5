#include "tests/support/archivetest.h"

#include <typeinfo>

namespace Vorn {

namespace {

class FileArchiveSystemTest : public ArchiveTest {};

TEST_F(FileArchiveSystemTest, DetectsFormAndVersion) {
    struct Row {
        std::string bytes;
        bool isText;
        std::int32_t version;
        std::uint32_t checkSum;
        std::int32_t field;
    };
    const std::string five("\5\0\0\0", 4);
    const Row rows[] = {
        {"TXT2\r\nZephArchiveVersion 194\r\nn 5\r\n", true, 194, 194, 5},
        {"\xEF\xBB\xBFTXT2\nZephArchiveVersion 12\nn 5\n", true, 12, 12, 5},
        {"TXT\nn 5\n", true, -1, 0, 5},
        {"this is TXT version 2 or so\nZephArchiveVersion 3\nn 5\n", true, 3, 3, 5},
        {std::string("BIN2\n\xC2\0\0\0", 9) + five, false, 194, 194, 5},
        {std::string("BIN2\n\xFF\xFF\xFF\xFF", 9) + five, false, -1, 0xFFFFFFFF, 5},
        {std::string("BIN2x\x10\0\0\0", 9) + five, false, 16, 16, 5},
        {"BIN\n" + five, false, -1, 0, 5},
        {"BINX" + five, false, -1, 0, 5},
    };
    for (const Row& row : rows) {
        FileArchive* archive = core->fileArchiveSystem.OpenForRead(Put("source", row.bytes), false);
        ASSERT_NE(archive, nullptr) << row.bytes;
        EXPECT_EQ(core->fileArchiveSystem.GetFileArchiveCount(), 1);
        EXPECT_EQ(archive->GetFile()->GetTranslation() == FileTranslation::Text, row.isText);
        EXPECT_EQ(archive->GetVersion(), row.version) << row.bytes;
        EXPECT_EQ(archive->GetCheckSum(), row.checkSum) << row.bytes;
        std::int32_t field = 0;
        archive->Read(u"n", field);
        EXPECT_EQ(field, row.field) << row.bytes;
        core->fileArchiveSystem.Close(archive);
        EXPECT_EQ(archive, nullptr);
    }
    EXPECT_EQ(core->fileArchiveSystem.GetFileArchiveCount(), 0);
    EXPECT_EQ(core->fileSystem.OpenCount(), 0);
}

TEST_F(FileArchiveSystemTest, RefusesWhatIsNeither) {
    for (const char* bytes : {"\nTXT2\n", "bin2\n\xC2\n", "txt2 and so on\n"}) {
        EXPECT_EQ(core->fileArchiveSystem.OpenForRead(Put("neither%%d", bytes), false), nullptr);
        EXPECT_EQ(TakeReports(),
                  Reports({"Could not detect if Archive File is Binary or Text: " + Utf8(NameIn("neither%d"))}));
    }
    EXPECT_EQ(core->fileArchiveSystem.OpenForWrite(NameIn("no/where"), false, FileArchiveType::Text), nullptr);
    EXPECT_EQ(TakeReports(), Reports({"Failed to Open File: '" + Utf8(NameIn("no/where")) + "'\n"}));
    EXPECT_EQ(core->fileArchiveSystem.GetFileArchiveCount(), 0);
}

// A store whose files return single bytes and can be opened only once.
class OnceStore final : public FileStore {
public:
    std::unique_ptr<ByteStream> Open(std::u16string_view, FileAccess) override {
        return ++opened == 1 ? std::make_unique<Stream>(bytes) : nullptr;
    }
    bool Exists(std::u16string_view) const override { return true; }

    std::string bytes;
    int opened = 0;

private:
    class Stream final : public ByteStream {
    public:
        explicit Stream(std::string_view _bytes) : bytes(_bytes) {}
        std::ptrdiff_t Read(void* place, std::size_t count) override {
            const std::size_t taken = bytes.copy(static_cast<char*>(place), std::min<std::size_t>(count, 1));
            bytes.remove_prefix(taken);
            return static_cast<std::ptrdiff_t>(taken);
        }
        bool Write(const void*, std::size_t) override { return false; }
        bool Close() override { return true; }

    private:
        std::string_view bytes;
    };
};

TEST_F(FileArchiveSystemTest, OpensASourceOnceAndReportsAsIfOpenedForEachStep) {
    struct Row {
        std::string bytes;
        // Short reads of single bytes, and lines without a line feed.
        int shortReads;
        int openLines;
        OpenFailure failure;
    };
    const Row rows[] = {{"TXT2\nZephArchiveVersion 194\nn 5\n", 0, 0, OpenFailure::None},
                        {std::string("BIN2\n\xC2\0\0\0\5\0\0\0", 13), 0, 0, OpenFailure::None},
                        {"BIN", 2 + 1, 0, OpenFailure::None},
                        {"TXT", 2, 2, OpenFailure::None},
                        {"TXT" + std::string(300, ' ') + "\n", 0, 2, OpenFailure::None},
                        {"text", 1, 1, OpenFailure::NotAnArchive},
                        {"", 5, 0, OpenFailure::NotAnArchive}};
    for (const Row& row : rows) {
        OnceStore store;
        store.bytes = row.bytes;
        FileSystem files(store);
        FileArchiveSystem archives(files, core->fileArchiveSystem.GetContext());
        FileArchive* archive = archives.OpenForRead(u"source", false);
        EXPECT_EQ(archives.GetOpenFailure(), row.failure) << row.bytes;
        EXPECT_EQ(archive != nullptr, row.failure == OpenFailure::None) << row.bytes;
        archives.Close(archive);
        EXPECT_EQ(files.OpenCount(), 0);
        EXPECT_EQ(store.opened, 1);
        const Reports reports = TakeReports();
        const auto count = [&](std::string_view start) {
            return std::count_if(reports.begin(), reports.end(),
                                 [&](const std::string& report) { return report.starts_with(start); });
        };
        EXPECT_EQ(count("Failed to Read File 'source'. desired read bytes = 1, actual"), row.shortReads) << row.bytes;
        EXPECT_EQ(count("Missing \n in source"), row.openLines) << row.bytes;
    }
}

TEST_F(FileArchiveSystemTest, AFileThatDoesNotOpenIsReportedTwice) {
    EXPECT_EQ(core->fileArchiveSystem.OpenForRead(NameIn("missing"), false), nullptr);
    EXPECT_EQ(core->fileArchiveSystem.GetOpenFailure(), OpenFailure::CannotOpen);
    EXPECT_EQ(TakeReports(), Reports(2, "Failed to Open File: '" + Utf8(NameIn("missing")) + "'\n"));
    Mesh::Data data;
    EXPECT_FALSE(data.Load(core->fileArchiveSystem, NameIn("missing")));
    EXPECT_FALSE(data.isLoaded);
    TakeReports();
}

TEST_F(FileArchiveSystemTest, ChecksItsCountAndVersions) {
    FileArchive* archive = core->fileArchiveSystem.OpenForRead(Put("a", "TXT2\nZephArchiveVersion 3\n"), false);
    archive->SetVersion(5);
    EXPECT_EQ(TakeReports(), Reports({Check("version == -1 || _version == -1")}));
    EXPECT_EQ(archive->GetVersion(), 5);
    archive->SetVersion(Archive::kNoVersion);
    core->fileArchiveSystem.Close(archive);
    core->fileArchiveSystem.Close(archive);
    EXPECT_EQ(core->fileArchiveSystem.Create(nullptr, FileArchiveType::Unknown, false), nullptr);
    core.reset();
    EXPECT_EQ(TakeReports(), Reports({Check("false"), Check("fileArchiveCount == 0")}));
}

} // namespace

} // namespace Vorn
