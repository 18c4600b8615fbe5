#include "tests/support/casesource.h"
#include "tests/support/process.h"
#include "tests/support/tempfolder.h"

#include <gtest/gtest.h>

namespace Vorn {

namespace {

constexpr std::string_view kEmptyMesh = "TXT\nMeshData\n"
                                        "maxDiffuseMipLevel 2\nhasValidTangents FALSE\nBoundingRadius 5\n"
                                        "MaxBoundingExtents [ 1 1 1 ]\nMinBoundingExtents [ 0 0 0 ]\n"
                                        "NumMaterials 0\nNumPoints 0\nNumVertices 0\nNumTriangles 0\n"
                                        "NumCachedVertexIndicesInDirection:UP 0\n"
                                        "NumCachedVertexIndicesInDirection:DOWN 0\n"
                                        "NumCachedVertexIndicesInDirection:LEFT 0\n"
                                        "NumCachedVertexIndicesInDirection:RIGHT 0\n"
                                        "NumCachedVertexIndicesInDirection:FRONT 0\n"
                                        "NumCachedVertexIndicesInDirection:BACK 0\n";

class MeshConversionTest : public testing::Test {
protected:
    MeshConversionTest() { std::filesystem::create_directories(Folder()); }

    // Two levels down, so that the search for data files stays inside.
    std::filesystem::path Folder() const { return scratch.Path() / "tools" / "bin"; }

    ProcessResult Convert(const char* type, const char* source, const char* destination, const char* form) const {
        return RunConverter({type, source, destination, form}, Folder());
    }

    TempFolder scratch;
};

constexpr const char* kNotFound = "Failed to find data file 'hull.mesh'. (SubPath = )\n"
                                  "Could not find Mesh: art/hull.dds\n";

} // namespace

TEST_F(MeshConversionTest, AMissingMeshEndsBehindTheHeaderOfTheDestination) {
    const ProcessResult text = Convert("mesh", "art/hull.dds", "out", "txt");
    EXPECT_TRUE(text.EndedAbnormally());
    EXPECT_EQ(text.reports, kNotFound);
    EXPECT_EQ(ReadBytes(Folder() / "out"), CurrentHeader(false));
    EXPECT_TRUE(Convert("mesh", "art/hull.dds", "out", "bin").EndedAbnormally());
    EXPECT_EQ(ReadBytes(Folder() / "out"), CurrentHeader(true));
}

TEST_F(MeshConversionTest, AMissingMeshEndsWithoutADestinationToo) {
    const ProcessResult result = Convert("mesh", "art/hull.dds", "none/out", "bin");
    EXPECT_TRUE(result.EndedAbnormally());
    EXPECT_EQ(result.reports, std::string(kNotFound) + "Failed to Open File: 'none/out'\nassert! [mesh != NULL]\n");
}

TEST_F(MeshConversionTest, ADestinationThatDoesNotOpenIsReported) {
    WriteBytes(Folder() / "hull.txt", kEmptyMesh);
    const ProcessResult result = Convert("mesh", "hull.txt", "none/out", "bin");
    EXPECT_EQ(result.status, 0);
    EXPECT_EQ(result.reports, "Failed to Open File: 'none/out'\n");
}

TEST_F(MeshConversionTest, FindsAMeshByItsStemInTheDataFolder) {
    std::filesystem::create_directories(scratch.Path() / "DataSource" / "Mesh");
    WriteBytes(scratch.Path() / "DataSource" / "Mesh" / "hull.mesh", kEmptyMesh);
    const ProcessResult result = Convert("MESH", "art/hull.dds", "out", "bin");
    EXPECT_EQ(result.status, 0);
    EXPECT_EQ(result.reports, "");
    EXPECT_EQ(ReadBytes(Folder() / "out")->substr(9, 9), std::string("\x02\0\0\0\0\0\0\xA0\x40", 9));
}

} // namespace Vorn
