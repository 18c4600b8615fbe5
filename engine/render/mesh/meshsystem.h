#pragma once

#include "engine/datastructures/pool.h"
#include "engine/file/filesystem.h"
#include "engine/render/mesh/mesh.h"

namespace Vorn {

// Finds meshes, keeps one for each file and counts its users. In mock mode every mesh is a new, artificial one that its
// user owns.
class MeshSystem {
public:
    static constexpr int kMaxMeshes = 800;

    MeshSystem(FileSystem& _fileSystem, FileArchiveSystem& _archives) : fileSystem(_fileSystem), archives(_archives) {}
    MeshSystem(const MeshSystem&) = delete;
    MeshSystem& operator=(const MeshSystem&) = delete;
    ~MeshSystem() { FreeAll(); }

    // The mesh of a file that FindMeshFile finds, with one more reference; null, after reports, if there is none or the
    // file cannot be loaded.
    Mesh* GetMesh(std::u16string_view name, const Mesh::LoadParams& loadParams);

    // Removes one reference; a mock mesh is destroyed. Null ends the process abnormally after its check.
    void ReleaseMesh(Mesh* mesh);

    // Accepts a name if such a file exists; else searches for a data file with the stem of the name and the extension
    // ".mesh".
    bool FindMeshFile(DataPath& result, std::u16string_view name) const;

    // Frees every mesh, even if it is still in use.
    void FreeAll();

    // The sub path of data folders to search for meshes. If it is set, the data folders are always searched.
    void SetMeshDirectory(std::u16string_view path) { meshDirectory.Assign(path); }

    // Whether GetMesh reads the file of a mesh that is not loaded yet.
    void SetLoadDataOnGet(bool on) { loadDataOnGet = on; }

    // From now on GetMesh creates artificial meshes with this radius and the points added by AddMockPoint.
    void EnterMockMode(float boundingRadius);
    void AddMockPoint(std::u16string_view name) { mockPointNames.Append().Assign(name); }
    bool IsMock() const { return mockMode; }

    int MeshCount() const { return m_MeshPtrVector.Size(); }
    // The time that all loading took so far.
    float GetLoadSeconds() const { return loadSeconds; }

private:
    static constexpr int kPoolSize = 32;
    static constexpr int kMaxMockPoints = 32;

    Mesh* MakeMockMesh(std::u16string_view name) const;
    Mesh* FindOrAddMesh(const DataPath& path, const Mesh::LoadParams& loadParams);
    bool LoadTimed(Mesh& mesh);
    void Free(int i);

    FileSystem& fileSystem;
    FileArchiveSystem& archives;
    FixedVector<Mesh*, kMaxMeshes> m_MeshPtrVector;
    Pool<Mesh, kPoolSize> pool;
    DataPath meshDirectory;
    bool loadDataOnGet = true;
    bool mockMode = false;
    float mockRadius = 0.0f;
    FixedVector<FixedString<256>, kMaxMockPoints> mockPointNames;
    float loadSeconds = 0.0f;
};

} // namespace Vorn
