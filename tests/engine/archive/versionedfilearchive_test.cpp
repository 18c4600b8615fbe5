#include "engine/archive/further/versionedfilearchive.h"
#include "tests/support/casesource.h"
#include "tests/support/enginetest.h"

namespace Vorn {

namespace {

const std::string kHeader = CurrentHeader(false);

// Settings that remember how they were read.
class Settings final : public VersionedFileArchive {
public:
    Settings(FileArchiveSystem& system, std::u16string_view name, std::uint32_t version)
        : VersionedFileArchive(system, name, FileArchiveType::Text, version) {}

    using VersionedFileArchive::Read;

    void Read(Archive& archive, std::uint32_t version) override {
        versionsRead.push_back(version);
        archive.Read(u"volume", volume);
    }
    void Write(Archive& archive) const override { archive.Write(u"volume", volume); }

    float volume = 50.0f;
    std::vector<std::uint32_t> versionsRead;
};

class VersionedFileArchiveTest : public FileTest {
protected:
    static constexpr std::uint32_t kVersion = 3;

    // A logged line has a position too, but is no check.
    void Handle(const char* file, int line, std::u16string_view text, bool isFailure) override {
        EngineTest::Handle(file, isFailure ? line : -1, text, isFailure);
    }

    // A settings file with these lines after its header.
    void PutSettings(std::string_view lines) { Put("settings", kHeader + std::string(lines)); }

    // Opens the settings and checks their volume and the versions that were read.
    void ExpectOpened(std::string_view fileName, float volume, const std::vector<std::uint32_t>& versions) {
        Settings settings(core->fileArchiveSystem, NameIn(fileName), kVersion);
        settings.Open();
        EXPECT_EQ(settings.volume, volume);
        EXPECT_EQ(settings.versionsRead, versions);
    }

    void ExpectNewFile(std::string_view volume) {
        EXPECT_EQ(ReadBytes(folder.Path() / "settings"),
                  kHeader + "Version 3\r\nvolume " + std::string(volume) + ".000000\r\n");
    }

    std::string NotFound(std::string_view name) {
        return Utf8(NameIn(name)) + " not found... New Version being created.\n";
    }
    std::string FailedToOpen(std::string_view name) {
        return Utf8(NameIn(name)) + " failed to open... New Version being created.\n";
    }
    std::string OldVersion() {
        return "Detected old version of " + Utf8(NameIn("settings")) + "... New Version being created.\n";
    }
};

TEST_F(VersionedFileArchiveTest, CurrentFile) {
    PutSettings("Version 3\nvolume 70\n");
    ExpectOpened("settings", 70, {3});
}

TEST_F(VersionedFileArchiveTest, MissingFile) {
    ExpectOpened("settings", 50, {3});
    EXPECT_EQ(TakeReports(), Reports{NotFound("settings")});
    ExpectNewFile("50");
}

TEST_F(VersionedFileArchiveTest, NoArchive) {
    Put("settings", "volume=70\n");
    ExpectOpened("settings", 50, {3});
    EXPECT_EQ(TakeReports(), (Reports{"Could not detect if Archive File is Binary or Text: " + Utf8(NameIn("settings")),
                                      FailedToOpen("settings")}));
    ExpectNewFile("50");
}

// The values of an old file are kept in the new one.
TEST_F(VersionedFileArchiveTest, OldVersion) {
    PutSettings("Version 2\nvolume 70\n");
    ExpectOpened("settings", 70, {2, 3});
    EXPECT_EQ(TakeReports(), Reports{OldVersion()});
    ExpectNewFile("70");
}

TEST_F(VersionedFileArchiveTest, MissingVersion) {
    PutSettings("volume 70\n");
    ExpectOpened("settings", 70, {UINT32_MAX, 3});
    const Reports taken = TakeReports();
    ASSERT_EQ(taken.size(), 2u);
    EXPECT_TRUE(taken[0].starts_with("Text FileArchive missing Label.")) << taken[0];
    EXPECT_EQ(taken[1], OldVersion());
    ExpectNewFile("70");
}

TEST_F(VersionedFileArchiveTest, NotEvenANewFileOpens) {
    ExpectOpened("no/folder", 50, {});
    const std::string failed = "Failed to Open File: '" + Utf8(NameIn("no/folder")) + "'\n";
    EXPECT_EQ(TakeReports(), (Reports{NotFound("no/folder"), failed, FailedToOpen("no/folder"), failed}));
    EXPECT_EQ(core->fileArchiveSystem.GetFileArchiveCount(), 0);
}

TEST_F(VersionedFileArchiveTest, NewFileDoesNotOpenEither) {
    std::filesystem::create_symlink("/dev/null", folder.Path() / "settings");
    ExpectOpened("settings", 50, {});
    const Reports taken = TakeReports();
    ASSERT_EQ(taken.size(), 13u);
    EXPECT_EQ(taken[6], FailedToOpen("settings"));
    EXPECT_TRUE(taken[12].starts_with("Could not detect if Archive File")) << taken[12];
}

} // namespace

} // namespace Vorn
