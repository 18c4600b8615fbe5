#pragma once

#include "engine/archive/record.h"
#include "engine/datastructures/dynamicarray.h"
#include "engine/datastructures/fixedarray.h"

namespace Vorn {

class FileArchiveSystem;
class FileTexture;

// A loaded model. Owned by MeshSystem and shared by reference count, except for mock meshes, which their users own.
class Mesh {
public:
    // Parameters of the caller of GetMesh, stored with the mesh and not used here.
    struct LoadParams {
        std::uint16_t kind = 0;
        std::int32_t values[3] = {-1, -1, -1};
    };

    // The elements of arrays have no virtual functions, so that the memory of those that are missing in a file stays
    // untouched. The colour of a vertex in a file is dropped.
    struct Vertex {
        Vector3 position;
        Vector3 normal;
        Vector3 tangent;
        float u0 = 0.0f;
        float v0 = 0.0f;
        float u1 = 0.0f;
        float v1 = 0.0f;
    };

    // The record that reads and writes an element, here and below.
    struct ArchivableVertex final : Record, Vertex {
        void Fields(FieldIo& io) override;
    };

    // Indices of vertices and of the material, never checked against the arrays.
    struct Triangle {
        std::uint32_t iVertex0 = 0xFFFFFFFF;
        std::uint32_t iVertex1 = 0xFFFFFFFF;
        std::uint32_t iVertex2 = 0xFFFFFFFF;
        std::uint32_t iMaterial = 0xFFFFFFFF;
    };

    struct ArchivableTriangle final : Record, Triangle {
        void Fields(FieldIo& io) override;
    };

    // A named place on the model.
    struct Point {
        FixedString<256> name;
        Vector3 position;
        Matrix33 orientation;

        // A nameless point at the origin that looks along the axes.
        static Point Default();
    };

    // An orientation that is not left-handed and normalised is reported after reading, and kept.
    struct ArchivablePoint final : Record, Point {
        void Fields(FieldIo& io) override;
    };

    struct Material {
        FixedString<256> diffuseTextureFileName;
        FixedString<256> selfIlluminationTextureFileName;
        FixedString<256> normalTextureFileName;
        FixedString<256> displacementTextureFileName;
        FixedString<256> teamColorTextureFileName;
        Color diffuse;
        Color ambient;
        Color specular;
        Color emissive;
        float glossiness = 0.0f;
        // Set by reading a team colour texture whose stem is "TeamLogo"; not stored.
        bool isTeamLogo = false;
    };

    struct ArchivableMaterial final : Record, Material {
        void Fields(FieldIo& io) override;
    };

    // The stored part of a mesh. Writing always computes the cached vertex indices, regardless of what was read.
    class Data final : public Record {
    public:
        static constexpr int kDirectionCount = 6;

        // The key of the one record that a mesh file holds.
        static constexpr Label kLabel = u"MeshData";

        using VertexIndexVector = DynamicVector<std::int32_t>;

        // Reads the file at `path`, either form. False, after reports, for a file that cannot be opened or that is
        // neither form. An array count that is missing, negative or too large ends the process abnormally.
        bool Load(FileArchiveSystem& archives, std::u16string_view path);

        void Fields(FieldIo& io) override;

        // Lists for each of the directions UP, DOWN, LEFT, RIGHT, FRONT and BACK the vertices that face it.
        void ComputeCachedVertexIndices();

        std::uint32_t maxDiffuseMipLevel = 0;
        Bool hasValidTangents = false;
        float BoundingRadius = -1.0f;
        Vector3 MaxBoundingExtents{-kUnbounded, -kUnbounded, -kUnbounded};
        Vector3 MinBoundingExtents{kUnbounded, kUnbounded, kUnbounded};
        DynamicArray<Material> materials;
        DynamicArray<Point> points;
        DynamicArray<Vertex> vertices;
        DynamicArray<Triangle> triangles;
        FixedArray<VertexIndexVector, kDirectionCount> cachedVertexIndices;

        // Not stored: the result of Load, values computed from the extents, and a point that replaces missing ones.
        bool isLoaded = false;
        std::int32_t version = 0;
        FixedString<256> fileName;
        Vector3 boundingSize;
        Vector3 boundingCentre;
        Vector3 boundingHalfSize;
        Point defaultPoint = Point::Default();

    private:
        static constexpr float kUnbounded = 3.4028234663852886e+38f;

        void ComputeBoundingBox();
    };

    explicit Mesh(const LoadParams& _loadParams) : loadParams(_loadParams) {}
    Mesh(const Mesh&) = delete;
    Mesh& operator=(const Mesh&) = delete;
    ~Mesh();

    std::int32_t GetRefCount() const { return m_RefCount; }

    LoadParams loadParams;
    Data data;

private:
    friend class MeshSystem;

    // The path that the mesh was found at; MeshSystem keeps one mesh for each.
    FixedString<260> resolvedName;
    std::int32_t m_RefCount = 0;
    bool isMock = false;

    // What a renderer adds to a mesh. The destructor checks that it was released before.
    DynamicVector<FileTexture*> m_DiffuseTexturePtrs;
    DynamicVector<FileTexture*> m_SelfIlluminationTexturePtrs;
    DynamicVector<FileTexture*> m_NormalTexturePtrs;
    DynamicVector<FileTexture*> m_DisplacementTexturePtrs;
    DynamicVector<FileTexture*> m_TeamColorTexturePtrs;
    void* m_pD3DXMesh = nullptr;
    void* m_pSHPRTBuffer = nullptr;
    void* m_pAttributeTable = nullptr;
    std::uint32_t m_AttributeTableSize = 0;
};

template <>
inline constexpr bool kIsZeroByDefault<Mesh::Vertex> = true;
template <>
inline constexpr bool kIsZeroByDefault<Mesh::Point> = true;
template <>
inline constexpr bool kIsZeroByDefault<Mesh::Material> = true;

} // namespace Vorn
