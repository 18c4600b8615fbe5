#pragma once

#include "engine/archive/filearchivesystem.h"
#include "engine/core/core.h"
#include "engine/render/mesh/mesh.h"

namespace Vorn {

inline constexpr int kLeastSyntheticVertices = 100;

// Fills a fresh mesh with a hull like an asteroid's: an ellipsoid of rings with bumps on it and about two triangles a
// vertex. The same arguments give the same mesh.
void FillSyntheticMesh(Mesh::Data& data, int vertexCount, std::uint64_t seed);

// Writes a mesh file; a name that cannot be opened is reported.
void WriteMesh(Core& core, std::u16string_view name, FileArchiveType form, const Mesh::Data& data);

} // namespace Vorn
