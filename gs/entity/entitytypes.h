#pragma once

#include "gs/entity/entitydef.h"

#include <memory>

namespace Vorn {

// A row of the factory: a type, its text in files and the function that creates its class, null for a type that no
// file may have.
struct EntityTypeRow {
    EntityType value;
    std::u16string_view text;
    std::unique_ptr<EntityDef> (*make)();
};

// The row of a type; null for a type out of range.
const EntityTypeRow* FindEntityType(EntityType type);

// The texts of all types.
extern const EnumTable kEntityTypeTable;

} // namespace Vorn
