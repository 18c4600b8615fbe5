#include "gs/entity/entitysystem.h"

#include "engine/archive/filearchivesystem.h"
#include "engine/core/reporting.h"
#include "engine/file/path.h"
#include "gs/entity/entitytypes.h"

namespace Vorn {

namespace {

// The most units of a stem that the report shows.
constexpr std::size_t kStemLimit = 255;

} // namespace

void EntitySystem::TypeField(FieldIo& io, EntityType& type) {
    auto number = static_cast<std::int32_t>(type);
    io.EnumNumber(u"entityType", number, kEntityTypeTable);
    type = static_cast<EntityType>(number);
}

EntitySystem::EntitySystem(FileArchiveSystem& _archives) : archives(_archives), context(archives.GetContext()) {
    context.races = &playerSystem.races;
    context.factions = &playerSystem.factions;
}

std::unique_ptr<EntityDef> EntitySystem::LoadEntityDef(std::u16string_view path) {
    const ScopedArchive archive(archives, archives.OpenForRead(path, false));
    if (!archive) {
        return nullptr;
    }
    archive->SetContext(&context);
    FieldIo io(*archive, FieldIo::Direction::Read);
    EntityType type = EntityType::Invalid;
    TypeField(io, type);
    std::unique_ptr<EntityDef> definition = CreateNamed(type, path);
    if (definition != nullptr) {
        definition->Fields(io);
    }
    entityDefArchiveSum += archive->GetCheckSum();
    return definition;
}

std::unique_ptr<EntityDef> EntitySystem::CreateNamed(EntityType type, std::u16string_view path) {
    const std::u16string_view stem = SplitPath(path).stem;
    if (stem.size() >= EntityDefName::kCapacity) {
        ReportError(u"EntityDefName is too long: %s\n", stem.substr(0, kStemLimit));
        return nullptr;
    }
    return CreateEntityDef(type, stem);
}

std::unique_ptr<EntityDef> EntitySystem::CreateEntityDef(EntityType type, std::u16string_view name) {
    const EntityTypeRow* row = FindEntityType(type);
    const bool hasClass = row != nullptr && row->make != nullptr;
    CheckAssert(hasClass, "false");
    if (!hasClass) {
        return nullptr;
    }
    std::unique_ptr<EntityDef> definition = row->make();
    definition->entityType = type;
    definition->name.SetText(name);
    return definition;
}

void EntitySystem::WriteEntityDef(Archive& archive, const EntityDef& definition) {
    archive.SetContext(&context);
    FieldIo io(archive, FieldIo::Direction::Write);
    EntityType type = definition.GetEntityType();
    TypeField(io, type);
    definition.Write(archive);
}

} // namespace Vorn
