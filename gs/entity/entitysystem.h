#pragma once

#include "gs/entity/entitydef.h"
#include "gs/player/playersystem.h"

#include <memory>

namespace Vorn {

class FileArchiveSystem;

// Loads and creates entity definitions.
class EntitySystem {
public:
    explicit EntitySystem(FileArchiveSystem& _archives);
    EntitySystem(const EntitySystem&) = delete;
    EntitySystem& operator=(const EntitySystem&) = delete;

    // What definitions need from outside, for archives that are not opened here. The names of races and factions are
    // those of this system.
    const FieldContext& GetContext() const { return context; }

    // The definition in a file, named after the file's stem. Null, after its report, for a file that cannot be opened
    // or is no archive, a type without a class and a stem of 80 or more units. Damage inside only reports.
    std::unique_ptr<EntityDef> LoadEntityDef(std::u16string_view path);

    // A fresh definition; null, after the check "false", for a type without a class.
    static std::unique_ptr<EntityDef> CreateEntityDef(EntityType type, std::u16string_view name);

    // The type field, which comes before the fields of a definition.
    static void TypeField(FieldIo& io, EntityType& type);

    // Writes a definition as a file holds it, the type's text first.
    void WriteEntityDef(Archive& archive, const EntityDef& definition);

    // The sum of all that was read of the files so far, refused ones included.
    std::uint32_t GetEntityDefArchiveSum() const { return entityDefArchiveSum; }

private:
    static std::unique_ptr<EntityDef> CreateNamed(EntityType type, std::u16string_view path);

    FileArchiveSystem& archives;
    // Definitions keep names of races and factions as indexes in its lists.
    PlayerSystem playerSystem;
    FieldContext context;
    std::uint32_t entityDefArchiveSum = 0;
};

} // namespace Vorn
