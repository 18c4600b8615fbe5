#include "engine/render/mesh/meshsystem.h"

#include "engine/archive/archiveversion.h"
#include "tests/support/enginetest.h"

namespace Vorn {

namespace {

class MeshSystemTest : public FileTest {
protected:
    // A mesh file with nothing but a radius in it.
    std::u16string PutMesh(std::string_view fileName, float radius) {
        Mesh::Data data;
        data.BoundingRadius = radius;
        FileArchive* archive = core->fileArchiveSystem.OpenForWrite(NameIn(fileName), false, FileArchiveType::Binary);
        archive->Write(u"MeshData", data);
        core->fileArchiveSystem.Close(archive);
        return NameIn(fileName);
    }

    MeshSystem& Meshes() { return core->meshSystem; }
};

} // namespace

TEST_F(MeshSystemTest, KeepsOneMeshForEachFile) {
    const std::u16string cutter = PutMesh("cutter.mesh", 12.0f);
    const std::u16string buoy = PutMesh("buoy.bin", 3.0f);
    Mesh* first = Meshes().GetMesh(cutter, {});
    Mesh* second = Meshes().GetMesh(buoy, {});
    EXPECT_EQ(Meshes().GetMesh(cutter, {}), first);
    EXPECT_NE(first, second);
    EXPECT_EQ(first->GetRefCount(), 2);
    EXPECT_EQ(first->data.BoundingRadius, 12.0f);
    EXPECT_EQ(first->data.version, kArchiveVersion);
    EXPECT_EQ(Utf8(second->data.fileName.View()), Utf8(buoy));
    Meshes().ReleaseMesh(first);
    Meshes().ReleaseMesh(first);
    Meshes().ReleaseMesh(second);
    EXPECT_EQ(Meshes().MeshCount(), 2);
    Meshes().FreeAll();
    EXPECT_EQ(Meshes().MeshCount(), 0);
}

TEST_F(MeshSystemTest, MarksTheLogoOfATeam) {
    Mesh::Data data;
    data.materials.Resize(2);
    data.materials[0].teamColorTextureFileName.Assign(u"Hull.dds");
    data.materials[1].teamColorTextureFileName.Assign(u"art\\TeamLogo.dds");
    FileArchive* archive = core->fileArchiveSystem.OpenForWrite(NameIn("x.mesh"), false, FileArchiveType::Text);
    archive->Write(Mesh::Data::kLabel, data);
    core->fileArchiveSystem.Close(archive);
    Mesh* mesh = Meshes().GetMesh(NameIn("x.mesh"), {});
    EXPECT_FALSE(mesh->data.materials[0].isTeamLogo);
    EXPECT_TRUE(mesh->data.materials[1].isTeamLogo);
    Meshes().ReleaseMesh(mesh);
}

TEST_F(MeshSystemTest, ReportsHoldersThatForgotAMeshOrGaveItBackTwice) {
    Meshes().GetMesh(PutMesh("kept.mesh", 1.0f), {});
    Meshes().FreeAll();
    EXPECT_EQ(TakeReports(), (Reports{Check("pMesh->GetRefCount() == 0"), Check("m_RefCount == 0")}));
    Mesh* mesh = Meshes().GetMesh(PutMesh("twice.mesh", 1.0f), {});
    Meshes().ReleaseMesh(mesh);
    Meshes().ReleaseMesh(mesh);
    EXPECT_EQ(TakeReports(), (Reports{Check("m_RefCount >= 0")}));
    Meshes().FreeAll();
    EXPECT_EQ(TakeReports(), (Reports{Check("pMesh->GetRefCount() == 0"), Check("m_RefCount == 0")}));
}

TEST_F(MeshSystemTest, LoadsLaterWhenAskedTo) {
    const std::u16string name = PutMesh("later.mesh", 9.0f);
    Meshes().SetLoadDataOnGet(false);
    Mesh* mesh = Meshes().GetMesh(name, {});
    EXPECT_FALSE(mesh->data.isLoaded);
    Meshes().SetLoadDataOnGet(true);
    EXPECT_EQ(Meshes().GetMesh(name, {}), mesh);
    EXPECT_EQ(mesh->data.BoundingRadius, 9.0f);
    Meshes().ReleaseMesh(mesh);
    Meshes().ReleaseMesh(mesh);
}

TEST_F(MeshSystemTest, AMissingMeshIsSearchedAndReported) {
    EXPECT_EQ(Meshes().GetMesh(u"no folder/ghost.v2.dds", {}), nullptr);
    EXPECT_EQ(TakeReports(), (Reports{"Failed to find data file 'ghost.v2.mesh'. (SubPath = )\n",
                                      "Could not find Mesh: no folder/ghost.v2.dds\n"}));
}

TEST_F(MeshSystemTest, AFileThatIsNoMeshIsNotKept) {
    EXPECT_EQ(Meshes().GetMesh(Put("text.mesh", "neither form\n"), {}), nullptr);
    EXPECT_EQ(Meshes().MeshCount(), 0);
    EXPECT_EQ(TakeReports().size(), 1u);
}

TEST_F(MeshSystemTest, AMeshDirectoryHidesNamesThatExist) {
    const std::u16string name = PutMesh("cutter.mesh", 12.0f);
    Meshes().SetMeshDirectory(u"Mesh");
    DataPath found;
    EXPECT_FALSE(Meshes().FindMeshFile(found, name));
    EXPECT_EQ(TakeReports(), (Reports{"Failed to find data file 'cutter.mesh'. (SubPath = Mesh)\n"}));
}

TEST_F(MeshSystemTest, MockMeshesBelongToTheirHolder) {
    Meshes().EnterMockMode(25.0f);
    Meshes().AddMockPoint(u"GunMount");
    Mesh* mesh = Meshes().GetMesh(u"nowhere.mesh", {});
    EXPECT_EQ(Meshes().MeshCount(), 0);
    EXPECT_EQ(mesh->GetRefCount(), 0);
    EXPECT_EQ(mesh->data.BoundingRadius, 25.0f);
    ASSERT_EQ(mesh->data.points.Size(), 1);
    EXPECT_EQ(mesh->data.points[0].name.View(), u"GunMount");
    EXPECT_EQ(mesh->data.points[0].orientation(1, 1), 1.0f);
    Meshes().ReleaseMesh(mesh);
}

} // namespace Vorn
