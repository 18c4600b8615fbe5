#include "tools/kelvanekit/check/loadedcontent.h"

#include "gs/entity/entitysystem.h"

namespace Vorn {

LoadedContent::LoadedContent(ContentKind kind) {
    textures.SetNameOnlyTextures(true);
    context.textures = &textures;
    context.races = &players.races;
    context.factions = &players.factions;
    switch (kind) {
    case ContentKind::Mesh:
        mesh = std::make_unique<Mesh::Data>();
        break;
    case ContentKind::Particle:
        particle = std::make_unique<ParticleSimulationDefinition>();
        break;
    case ContentKind::Brushes:
        brushes = std::make_unique<BrushSet>(std::u16string_view());
        break;
    case ContentKind::Entity:
        // Its type tells which one it is.
        break;
    }
}

void LoadedContent::Read(Archive& archive) {
    archive.SetContext(&context);
    FieldIo io(archive, FieldIo::Direction::Read);
    Fields(io);
}

void LoadedContent::Write(Archive& archive) {
    archive.SetContext(&context);
    if (particle != nullptr) {
        particle->StripFilePaths();
    }
    FieldIo io(archive, FieldIo::Direction::Write);
    Fields(io);
}

void LoadedContent::Fields(FieldIo& io) {
    if (mesh != nullptr) {
        io.Record(Mesh::Data::kLabel, *mesh);
    } else if (particle != nullptr) {
        io.Record(ParticleSimulationDefinition::kLabel, *particle);
    } else if (brushes != nullptr) {
        brushes->Fields(io);
    } else {
        EntityType type = entity != nullptr ? entity->GetEntityType() : EntityType::Invalid;
        EntitySystem::TypeField(io, type);
        if (io.Reading()) {
            entity = EntitySystem::CreateEntityDef(type, {});
        }
        if (entity != nullptr) {
            entity->Fields(io);
        }
    }
}

} // namespace Vorn
