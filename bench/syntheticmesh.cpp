#include "bench/syntheticmesh.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace Vorn {

namespace {

class Random {
public:
    explicit Random(std::uint64_t seed) : state(seed) {}

    std::uint64_t Next() {
        state += 0x9E3779B97F4A7C15;
        std::uint64_t bits = (state ^ state >> 30) * 0xBF58476D1CE4E5B9;
        bits = (bits ^ bits >> 27) * 0x94D049BB133111EB;
        return bits ^ bits >> 31;
    }

    // From -1 to 1.
    float Signed() { return static_cast<float>(Next() >> 40) / 8388608.0f - 1.0f; }

private:
    std::uint64_t state;
};

Vector3 Normalized(const Vector3& v) {
    const float length = std::sqrt(v.x * v.x + v.y * v.y + v.z * v.z);
    return {v.x / length, v.y / length, v.z / length};
}

Mesh::Vertex HullVertex(float across, float along, Random& random) {
    const float longitude = 2.0f * std::numbers::pi_v<float> * across;
    const float latitude = std::numbers::pi_v<float> * (along - 0.5f);
    const Vector3 unit = {std::cos(latitude) * std::cos(longitude), std::sin(latitude),
                          std::cos(latitude) * std::sin(longitude)};
    const float bump =
        1.0f + 0.05f * std::sin(23.0f * longitude) * std::cos(17.0f * latitude) + 0.01f * random.Signed();
    Mesh::Vertex vertex;
    vertex.position = {420.0f * unit.x * bump, 180.0f * unit.y * bump, 650.0f * unit.z * bump};
    vertex.normal =
        Normalized({unit.x / 420.0f + 0.0002f * random.Signed(), unit.y / 180.0f + 0.0002f * random.Signed(),
                    unit.z / 650.0f + 0.0002f * random.Signed()});
    vertex.tangent = Normalized({vertex.normal.z, 0.001f, -vertex.normal.x});
    vertex.u0 = vertex.u1 = across;
    vertex.v0 = vertex.v1 = along;
    return vertex;
}

void FillVertices(Mesh::Data& data, int count, int ringSize, Random& random) {
    data.vertices.Resize(count);
    const auto rings = static_cast<float>(count / ringSize + 1);
    for (int i = 0; i < count; ++i) {
        const float across = static_cast<float>(i % ringSize) / static_cast<float>(ringSize);
        data.vertices[i] = HullVertex(across, (static_cast<float>(i / ringSize) + 0.5f) / rings, random);
        const Vector3& p = data.vertices[i].position;
        data.MaxBoundingExtents = {std::max(data.MaxBoundingExtents.x, p.x), std::max(data.MaxBoundingExtents.y, p.y),
                                   std::max(data.MaxBoundingExtents.z, p.z)};
        data.MinBoundingExtents = {std::min(data.MinBoundingExtents.x, p.x), std::min(data.MinBoundingExtents.y, p.y),
                                   std::min(data.MinBoundingExtents.z, p.z)};
        data.BoundingRadius = std::max(data.BoundingRadius, std::sqrt(p.x * p.x + p.y * p.y + p.z * p.z));
    }
}

void FillTriangles(Mesh::Data& data, int ringSize) {
    const auto quads = static_cast<std::uint32_t>(data.vertices.Size() - ringSize - 1);
    const auto ring = static_cast<std::uint32_t>(ringSize);
    data.triangles.Resize(static_cast<int>(2 * quads));
    for (std::uint32_t i = 0; i < quads; ++i) {
        const std::uint32_t material = i / ring % 3;
        data.triangles[static_cast<int>(2 * i)] = {i, i + ring, i + 1, material};
        data.triangles[static_cast<int>(2 * i + 1)] = {i + 1, i + ring, i + ring + 1, material};
    }
}

void FillMaterials(Mesh::Data& data, Random& random) {
    data.materials.Resize(3);
    for (Mesh::Material& material : data.materials) {
        material.diffuseTextureFileName.Assign(u"asteroid_rock_color.dds");
        material.normalTextureFileName.Assign(u"asteroid_rock_normal.dds");
        material.diffuse = material.ambient = {1.0f, 1.0f, 1.0f, 1.0f};
        material.specular = {0.5f, 0.5f, 0.5f, 1.0f};
        material.glossiness = 25.0f + 20.0f * random.Signed();
    }
    data.points.Resize(4);
    for (Mesh::Point& point : data.points) {
        point = Mesh::Point::Default();
        point.name.Assign(u"GunMount");
        point.position = {400.0f * random.Signed(), 170.0f * random.Signed(), 600.0f * random.Signed()};
    }
}

} // namespace

void FillSyntheticMesh(Mesh::Data& data, int vertexCount, std::uint64_t seed) {
    Random random(seed);
    const int ringSize = static_cast<int>(std::sqrt(2.0 * vertexCount));
    data.hasValidTangents = true;
    FillVertices(data, vertexCount, ringSize, random);
    FillTriangles(data, ringSize);
    FillMaterials(data, random);
}

void WriteMesh(Core& core, std::u16string_view name, FileArchiveType form, const Mesh::Data& data) {
    FileArchive* archive = core.fileArchiveSystem.OpenForWrite(name, false, form);
    if (archive != nullptr) {
        archive->Write(u"MeshData", data);
        core.fileArchiveSystem.Close(archive);
    }
}

} // namespace Vorn
