#include "engine/archive/filearchivesystem.h"
#include "engine/file/path.h"
#include "engine/render/mesh/cachedvertexindices.h"

namespace Vorn {

namespace {

// No record of a mesh varies with the file's version, so a missing count must not pass for an empty array.
constexpr std::int32_t kMissingCount = -1;

// An element that knows whether it was read.
template <class Archived>
class ReadElement final : public Record {
public:
    void Fields(FieldIo& io) override {
        wasRead = true;
        element.Fields(io);
    }

    Archived element;
    bool wasRead = false;
};

// Reads or writes a plain element by the record that lists its fields. One that the file does not hold is not stored:
// it would be the first use of its memory.
template <class Archived, class T>
void PlainRecord(FieldIo& io, Label label, T& element) {
    ReadElement<Archived> archived;
    T& fields = archived.element;
    if (io.Writing()) {
        fields = element;
    }
    io.Record(label, archived);
    if (io.Reading() && archived.wasRead) {
        element = fields;
    }
}

// An array that is sized once from its stored count. A count below 0 ends the process, and so does too large a one.
template <class Archived, class T>
void SizedArray(FieldIo& io, Label countLabel, Label label, DynamicArray<T>& array) {
    if (io.Reading()) {
        const std::int32_t count = io.ReadCount({countLabel, ListRule::Sized}, kMissingCount);
        const ListRoom room = io.MakeRoom<Archived>(count);
        array.Resize(count);
        io.ReadEntries(count, [&](std::int32_t i) { PlainRecord<Archived>(io, label, array[i]); });
    } else {
        io.WriteCount(countLabel, array.Size());
        for (T& element : array) {
            PlainRecord<Archived>(io, label, element);
        }
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

void Mesh::ArchivableMaterial::Fields(FieldIo& io) {
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
    SizedArray<ArchivableMaterial>(io, u"NumMaterials", u"Material", materials);
    SizedArray<ArchivablePoint>(io, u"NumPoints", u"Point", points);
    SizedArray<ArchivableVertex>(io, u"NumVertices", u"Vertex", vertices);
    SizedArray<ArchivableTriangle>(io, u"NumTriangles", u"Triangle", triangles);
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
