#include "engine/archive/filearchivesystem.h"
#include "engine/file/path.h"
#include "engine/render/mesh/cachedvertexindices.h"

#include <algorithm>

namespace Vorn {

namespace {

// No record of a mesh varies with the file's version, so a missing count must not pass for an empty array.
constexpr std::int32_t kMissingCount = -1;

// An array that is sized once from its stored count. A count below 0 ends the process.
template <class T, class Entry>
void SizedArray(FieldIo& io, Label countLabel, DynamicArray<T>& array, Entry entry) {
    if (io.Reading()) {
        array.Resize(io.ReadCount({countLabel, ListRule::Sized}, kMissingCount));
        io.ReadEntries(array.Size(), [&](std::int32_t i) { entry(array[i]); });
    } else {
        io.WriteCount(countLabel, array.Size());
        std::for_each(array.begin(), array.end(), entry);
    }
}

// Takes a plain element through the record that lists its fields. What is read starts from the record's defaults, since
// to look at the untouched element would cost its page a first touch of its own.
template <class Archived, class T>
void PlainRecord(FieldIo& io, Label label, T& element) {
    Archived archived;
    T& fields = archived;
    if (io.Writing()) {
        fields = element;
    }
    io.Record(label, archived);
    if (io.Reading()) {
        element = fields;
    }
}

} // namespace

void Mesh::ArchivableVertex::Fields(FieldIo& io) {
    io.Vector3(u"Position", position);
    io.Vector3(u"Normal", normal);
    io.Vector3(u"Tangent", tangent);
    Color dropped;
    io.Color(u"Color", dropped);
    io.Float(u"U0", u0);
    io.Float(u"V0", v0);
    io.Float(u"U1", u1);
    io.Float(u"V1", v1);
}

void Mesh::ArchivableTriangle::Fields(FieldIo& io) {
    io.Uint(u"iVertex0", iVertex0);
    io.Uint(u"iVertex1", iVertex1);
    io.Uint(u"iVertex2", iVertex2);
    io.Uint(u"iMaterial", iMaterial);
}

void Mesh::Material::Fields(FieldIo& io) {
    io.String(u"DiffuseTextureFileName", diffuseTextureFileName);
    io.String(u"SelfIlluminationTextureFileName", selfIlluminationTextureFileName);
    io.String(u"NormalTextureFileName", normalTextureFileName);
    io.String(u"DisplacementTextureFileName", displacementTextureFileName);
    io.String(u"TeamColorTextureFileName", teamColorTextureFileName);
    io.Color(u"Diffuse", diffuse);
    io.Color(u"Ambient", ambient);
    io.Color(u"Specular", specular);
    io.Color(u"Emissive", emissive);
    io.Float(u"Glossiness", glossiness);
    if (io.Reading() && SplitPath(teamColorTextureFileName.View()).stem == u"TeamLogo") {
        isTeamLogo = true;
    }
}

void Mesh::Data::Fields(FieldIo& io) {
    io.Uint(u"maxDiffuseMipLevel", maxDiffuseMipLevel);
    io.Bool(u"hasValidTangents", hasValidTangents);
    io.Float(u"BoundingRadius", BoundingRadius);
    io.Vector3(u"MaxBoundingExtents", MaxBoundingExtents);
    io.Vector3(u"MinBoundingExtents", MinBoundingExtents);
    if (io.Reading()) {
        ComputeBoundingBox();
    }
    SizedArray(io, u"NumMaterials", materials, io.Records(u"Material"));
    SizedArray(io, u"NumPoints", points, io.Records(u"Point"));
    SizedArray(io, u"NumVertices", vertices,
               [&](Vertex& vertex) { PlainRecord<ArchivableVertex>(io, u"Vertex", vertex); });
    SizedArray(io, u"NumTriangles", triangles,
               [&](Triangle& triangle) { PlainRecord<ArchivableTriangle>(io, u"Triangle", triangle); });
    if (io.Writing()) {
        ComputeCachedVertexIndices();
    }
    for (int i = 0; i < kDirectionCount; ++i) {
        io.DerivedList(kDirections[i].countLabel, cachedVertexIndices[i], [&](std::int32_t& index) {
            auto number = static_cast<std::uint32_t>(index);
            io.Uint(u"Index", number);
            index = static_cast<std::int32_t>(number);
        });
    }
}

void Mesh::Data::ComputeBoundingBox() {
    const Vector3& top = MaxBoundingExtents;
    const Vector3& bottom = MinBoundingExtents;
    boundingSize = {top.x - bottom.x, top.y - bottom.y, top.z - bottom.z};
    boundingCentre = {0.5f * (bottom.x + top.x), 0.5f * (bottom.y + top.y), 0.5f * (bottom.z + top.z)};
    boundingHalfSize = {0.5f * boundingSize.x, 0.5f * boundingSize.y, 0.5f * boundingSize.z};
}

void Mesh::Data::ComputeCachedVertexIndices() {
    CacheVertexIndices(vertices, BoundingRadius, cachedVertexIndices);
}

bool Mesh::Data::Load(FileArchiveSystem& archives, std::u16string_view path) {
    CheckAssert(!isLoaded, "!isLoaded || g_Game.debugMenu->hotloadTextures");
    fileName.Assign(path);
    const ScopedArchive archive(archives, archives.OpenForRead(path, false));
    isLoaded = static_cast<bool>(archive);
    if (isLoaded) {
        archive->Read(kLabel, *this);
        version = archive->GetVersion();
    }
    return isLoaded;
}

} // namespace Vorn
