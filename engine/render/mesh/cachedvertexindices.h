#pragma once

#include "engine/render/mesh/mesh.h"

namespace Vorn {

// A direction that vertices are listed for.
struct MeshDirection {
    std::u16string_view name;
    // The key of the list's count.
    Label countLabel;
    Vector3 axis;
};

inline constexpr MeshDirection kDirections[Mesh::Data::kDirectionCount] = {
    {u"UP", u"NumCachedVertexIndicesInDirection:UP", {0.0f, 1.0f, 0.0f}},
    {u"DOWN", u"NumCachedVertexIndicesInDirection:DOWN", {0.0f, -1.0f, 0.0f}},
    {u"LEFT", u"NumCachedVertexIndicesInDirection:LEFT", {-1.0f, 0.0f, 0.0f}},
    {u"RIGHT", u"NumCachedVertexIndicesInDirection:RIGHT", {1.0f, 0.0f, 0.0f}},
    {u"FRONT", u"NumCachedVertexIndicesInDirection:FRONT", {0.0f, 0.0f, 1.0f}},
    {u"BACK", u"NumCachedVertexIndicesInDirection:BACK", {0.0f, 0.0f, -1.0f}},
};

// Fills the list of each direction with the vertices whose normal is at most three eighths of pi away from it, ordered
// by their distance from `boundingRadius` on the z axis, in FRONT and BACK on the x axis, equal ones by index. Vertices
// closer than a hundredth of the radius to the one listed before them are left out. Takes linear time.
void CacheVertexIndices(const DynamicArray<Mesh::Vertex>& vertices, float boundingRadius,
                        FixedArray<Mesh::Data::VertexIndexVector, Mesh::Data::kDirectionCount>& lists);

} // namespace Vorn
