#include "engine/render/mesh/meshsystem.h"

#include "engine/core/abnormalend.h"
#include "engine/file/path.h"

#include <algorithm>
#include <chrono>

namespace Vorn {

Mesh* MeshSystem::GetMesh(std::u16string_view name, const Mesh::LoadParams& loadParams) {
    if (mockMode) {
        return MakeMockMesh(name);
    }
    DataPath path;
    if (!FindMeshFile(path, name)) {
        ReportError(u"Could not find Mesh: %s\n", name);
        return nullptr;
    }
    Mesh* mesh = FindOrAddMesh(path, loadParams);
    if (loadDataOnGet && !mesh->data.isLoaded && !LoadTimed(*mesh)) {
        if (mesh->m_RefCount == 0) {
            Free(static_cast<int>(std::find(m_MeshPtrVector.begin(), m_MeshPtrVector.end(), mesh) -
                                  m_MeshPtrVector.begin()));
        }
        return nullptr;
    }
    ++mesh->m_RefCount;
    return mesh;
}

Mesh* MeshSystem::MakeMockMesh(std::u16string_view name) const {
    auto* mesh = new Mesh({});
    mesh->isMock = true;
    mesh->data.fileName.Assign(name);
    mesh->data.BoundingRadius = mockRadius;
    mesh->data.points.Resize(mockPointNames.Size());
    for (int i = 0; i < mockPointNames.Size(); ++i) {
        mesh->data.points[i] = Mesh::Point::Default();
        mesh->data.points[i].name = mockPointNames[i];
    }
    return mesh;
}

Mesh* MeshSystem::FindOrAddMesh(const DataPath& path, const Mesh::LoadParams& loadParams) {
    Mesh** found = std::find_if(m_MeshPtrVector.begin(), m_MeshPtrVector.end(),
                                [&](const Mesh* mesh) { return mesh->resolvedName == path; });
    if (found != m_MeshPtrVector.end()) {
        return *found;
    }
    Mesh* mesh = pool.Make(loadParams);
    mesh->resolvedName = path;
    m_MeshPtrVector.Append(mesh);
    return mesh;
}

bool MeshSystem::LoadTimed(Mesh& mesh) {
    const auto start = std::chrono::steady_clock::now();
    const bool isLoaded = mesh.data.Load(archives, mesh.resolvedName.View());
    loadSeconds += std::chrono::duration<float>(std::chrono::steady_clock::now() - start).count();
    return isLoaded;
}

void MeshSystem::ReleaseMesh(Mesh* mesh) {
    CheckAssert(mesh != nullptr, "mesh != NULL");
    if (mesh == nullptr) {
        EndAbnormally();
    }
    if (mesh->isMock) {
        delete mesh;
        return;
    }
    --mesh->m_RefCount;
    CheckAssert(mesh->m_RefCount >= 0, "m_RefCount >= 0");
}

bool MeshSystem::FindMeshFile(DataPath& result, std::u16string_view name) const {
    if (meshDirectory.IsEmpty()) {
        result.Assign(name);
        if (fileSystem.Exists(result.View())) {
            return true;
        }
    }
    const std::u16string fileName = std::u16string(SplitPath(name).stem) + u".mesh";
    return fileSystem.FindDataFile(result, fileName, meshDirectory.View(), true, true);
}

void MeshSystem::FreeAll() {
    while (m_MeshPtrVector.Size() > 0) {
        Free(0);
    }
    CheckAssert(m_MeshPtrVector.Size() == 0, "m_MeshPtrVector.Size() == 0");
}

void MeshSystem::Free(int i) {
    Mesh* pMesh = m_MeshPtrVector[i];
    CheckAssert(pMesh->GetRefCount() == 0, "pMesh->GetRefCount() == 0");
    m_MeshPtrVector.RemoveAt(i);
    pool.Destroy(pMesh);
}

void MeshSystem::EnterMockMode(float boundingRadius) {
    mockMode = true;
    mockRadius = boundingRadius;
    mockPointNames.Clear();
}

} // namespace Vorn
