#include "tools/kelvanekit/check/loadedcontent.h"

#include "gs/entity/entitysystem.h"

namespace Vorn {

LoadedContent::LoadedContent(ContentKind _kind) : kind(_kind) {
    textures.SetNameOnlyTextures(true);
    context.textures = &textures;
    context.races = &players.races;
    context.factions = &players.factions;
}

void LoadedContent::Read(Archive& archive) {
    archive.SetContext(&context);
    FieldIo io(archive, FieldIo::Direction::Read);
    switch (kind) {
    case ContentKind::Mesh:
        mesh = std::make_unique<Mesh::Data>();
        io.Record(Mesh::Data::kLabel, *mesh);
        break;
    case ContentKind::Particle:
        particle = std::make_unique<ParticleSimulationDefinition>();
        io.Record(ParticleSimulationDefinition::kLabel, *particle);
        break;
    case ContentKind::Brushes:
        brushes = std::make_unique<BrushSet>(std::u16string_view());
        brushes->Fields(io);
        break;
    case ContentKind::Entity: {
        EntityType type = EntityType::Invalid;
        EntitySystem::TypeField(io, type);
        entity = EntitySystem::CreateEntityDef(type, {});
        if (entity != nullptr) {
            entity->Fields(io);
        }
        break;
    }
    }
}

void LoadedContent::Write(Archive& archive) {
    archive.SetContext(&context);
    FieldIo io(archive, FieldIo::Direction::Write);
    if (mesh != nullptr) {
        io.Record(Mesh::Data::kLabel, *mesh);
    }
    if (particle != nullptr) {
        particle->StripFilePaths();
        io.Record(ParticleSimulationDefinition::kLabel, *particle);
    }
    if (brushes != nullptr) {
        brushes->Fields(io);
    }
    if (entity != nullptr) {
        EntityType type = entity->GetEntityType();
        EntitySystem::TypeField(io, type);
        entity->Fields(io);
    }
}

} // namespace Vorn
