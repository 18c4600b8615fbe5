#include "engine/archive/filearchivesystem.h"
#include "engine/file/path.h"
#include "engine/render/mesh/cachedvertexindices.h"

namespace Vorn {

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
    io.PlainList<ArchivableMaterial>(u"NumMaterials", u"Material", materials);
    io.PlainList<ArchivablePoint>(u"NumPoints", u"Point", points);
    io.PlainList<ArchivableVertex>(u"NumVertices", u"Vertex", vertices);
    io.PlainList<ArchivableTriangle>(u"NumTriangles", u"Triangle", triangles);
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
