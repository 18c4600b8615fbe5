#include "tools/kelvane/conversion.h"

#include "engine/archive/filearchivesystem.h"
#include "engine/core/abnormalend.h"
#include "engine/core/core.h"
#include "engine/render/mesh/meshsystem.h"
#include "engine/render/texture/texturesystem.h"
#include "engine/window/brushset.h"
#include "gs/entity/entitysystem.h"
#include "gs/render/particle/particlesimulationdefinitionsystem.h"

namespace Vorn {

namespace {

constexpr int kTextureDirectory = 5;

// Calls `write` with the archive of the destination and returns true if it can be opened.
template <class Write>
bool WriteDestination(Core& core, const Conversion& conversion, Write write) {
    FileArchiveSystem& archives = core.fileArchiveSystem;
    const ScopedArchive archive(archives, archives.OpenForWrite(conversion.destination, false, conversion.form));
    if (archive) {
        write(*archive);
    }
    return static_cast<bool>(archive);
}

// A source that cannot be opened ends the process, before the destination is opened.
void EndIfUnopened(const Core& core) {
    if (core.fileArchiveSystem.GetOpenFailure() == OpenFailure::CannotOpen) {
        EndAbnormally();
    }
}

// A mesh that was found and cannot be loaded ends the process before the destination is opened. One that was not found
// ends it when it would be written, after the destination was opened.
void ConvertMesh(Core& core, const Conversion& conversion) {
    Mesh* mesh = core.meshSystem.GetMesh(conversion.source, {});
    if (core.fileArchiveSystem.GetOpenFailure() != OpenFailure::None) {
        EndAbnormally();
    }
    WriteDestination(core, conversion, [&](Archive& archive) {
        if (mesh == nullptr) {
            EndAbnormally();
        }
        archive.Write(Mesh::Data::kLabel, mesh->data);
    });
    core.meshSystem.ReleaseMesh(mesh);
    core.meshSystem.FreeAll();
}

void ConvertBrushes(Core& core, const Conversion& conversion) {
    BrushSet brushSet(conversion.source);
    brushSet.Load(core.fileArchiveSystem);
    EndIfUnopened(core);
    WriteDestination(core, conversion, [&](Archive& archive) {
        FieldIo io(archive, FieldIo::Direction::Write);
        brushSet.Fields(io);
    });
    brushSet.ReleaseTextures();
}

void ConvertEntity(Core& core, const Conversion& conversion) {
    EntitySystem entitySystem(core.fileArchiveSystem);
    const std::unique_ptr<EntityDef> definition = entitySystem.LoadEntityDef(conversion.source);
    EndIfUnopened(core);
    if (definition != nullptr) {
        WriteDestination(core, conversion,
                         [&](Archive& archive) { entitySystem.WriteEntityDef(archive, *definition); });
    }
}

void ConvertParticle(Core& core, const Conversion& conversion) {
    ParticleSimulationDefinition definition;
    ParticleSimulationDefinitionSystem(core.fileArchiveSystem).Load(definition, conversion.source);
    EndIfUnopened(core);
    definition.StripFilePaths();
    if (WriteDestination(core, conversion,
                         [&](Archive& archive) { archive.Write(ParticleSimulationDefinition::kLabel, definition); })) {
        definition.SetFileName(conversion.destination);
    }
}

} // namespace

void SetUpForConversions(Core& core) {
    core.textureSystem.SetFolder(core.GetDirectory(kTextureDirectory));
    core.textureSystem.SetNameOnlyTextures(true);
}

void ConvertContent(Core& core, ContentKind kind, const Conversion& conversion) {
    switch (kind) {
    case ContentKind::Mesh:
        ConvertMesh(core, conversion);
        break;
    case ContentKind::Particle:
        ConvertParticle(core, conversion);
        break;
    case ContentKind::Brushes:
        ConvertBrushes(core, conversion);
        break;
    case ContentKind::Entity:
        ConvertEntity(core, conversion);
        break;
    }
}

} // namespace Vorn
