#include "tests/support/enginetest.h"

#include <algorithm>

namespace Vorn {

namespace {

namespace fs = std::filesystem;

// Runs two levels below the folder that contains the data source folder.
class DataFileSearchTest : public FileTest {
protected:
    DataFileSearchTest() : formerFolder(fs::current_path()) {
        fs::create_directories(folder.Path() / "tools" / "bin");
        fs::current_path(folder.Path() / "tools" / "bin");
    }
    ~DataFileSearchTest() override { fs::current_path(formerFolder); }

    void PutData(const fs::path& name) {
        fs::create_directories((folder.Path() / name).parent_path());
        WriteBytes(folder.Path() / name, "data");
    }

    std::string Find(std::u16string_view fileName, std::u16string_view subPath = u"", bool useModFolders = true) {
        DataPath result;
        core->fileSystem.FindDataFile(result, fileName, subPath, useModFolders, false);
        std::string path = Utf8(result.View());
        std::replace(path.begin(), path.end(), '\\', '/');
        return path;
    }

    const fs::path formerFolder;
};

} // namespace

TEST_F(DataFileSearchTest, SearchesTheTreeDepthFirstByName) {
    PutData("DataSource/b/one.mesh");
    PutData("DataSource/a/deep/er/one.mesh");
    PutData("DataSource/B/two.mesh");
    PutData("DataSource/a/two.mesh");
    PutData("DataSource/a/deep/two.mesh");
    EXPECT_EQ(Find(u"one.mesh"), "../../DataSource/a/deep/er/one.mesh");
    EXPECT_EQ(Find(u"two.mesh"), "../../DataSource/B/two.mesh");
    EXPECT_EQ(Find(u"two.mesh", u"a"), "../../DataSource/a/two.mesh");
    PutData("DataSource/one.mesh");
    EXPECT_EQ(Find(u"one.mesh"), "../../DataSource/one.mesh");
}

TEST_F(DataFileSearchTest, TakesNoFolderForAFileAndFollowsNoLink) {
    PutData("elsewhere/linked.mesh");
    fs::create_directories(folder.Path() / "DataSource" / "linked.mesh");
    fs::create_directory_symlink(folder.Path() / "elsewhere", folder.Path() / "DataSource" / "link");
    fs::create_directory_symlink(folder.Path() / "DataSource", folder.Path() / "DataSource" / "loop");
    EXPECT_EQ(Find(u"linked.mesh"), "");
}

TEST_F(DataFileSearchTest, RegisteredFoldersComeFirstThoseOfModsFirstOfAll) {
    PutData("DataSource/three.mesh");
    PutData("data/Mesh/three.mesh");
    PutData("mod/Mesh/three.mesh");
    core->fileSystem.AddDataFolder(u"../../data");
    core->fileSystem.AddModFolder(u"../../mod/");
    EXPECT_EQ(Find(u"three.mesh", u"Mesh"), "../../mod/Mesh/three.mesh");
    EXPECT_EQ(Find(u"three.mesh", u"Mesh", false), "../../data/Mesh/three.mesh");
    EXPECT_EQ(Find(u"three.mesh"), "../../DataSource/three.mesh");
}

TEST_F(DataFileSearchTest, IgnoresPathsThatDoNotFit) {
    const std::string longName(200, 'n');
    PutData(fs::path("DataSource") / longName / "fits.mesh");
    PutData(fs::path("DataSource") / longName / (std::string(50, 'm') + ".mesh"));
    EXPECT_EQ(Find(u"fits.mesh"), "../../DataSource/" + longName + "/fits.mesh");
    EXPECT_EQ(Find(std::u16string(50, u'm') + u".mesh"), "");
}

TEST_F(DataFileSearchTest, ReportsAFailureWhenAskedTo) {
    DataPath result;
    EXPECT_FALSE(core->fileSystem.FindDataFile(result, u"none.mesh", u"Mesh", true, true));
    EXPECT_EQ(TakeReports(), (Reports{"Failed to find data file 'none.mesh'. (SubPath = Mesh)\n"}));
}

} // namespace Vorn
