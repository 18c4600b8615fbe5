#pragma once

#include "engine/archive/record.h"
#include "gs/entity/support/entitydefname.h"
#include "gs/entity/support/entitytype.h"

namespace Vorn {

// A definition of a kind of thing in the game. Name and type are not among its fields: the name is that of the file,
// and the type comes before the fields of the definition. Definitions are large and must be created on the heap.
class EntityDef : public Record {
public:
    EntityDef() = default;
    EntityDef(const EntityDef&) = delete;
    EntityDef& operator=(const EntityDef&) = delete;

    const EntityDefName& GetName() const { return name; }
    EntityType GetEntityType() const { return entityType; }

private:
    friend class EntitySystem;

    EntityDefName name;
    EntityType entityType = EntityType::Invalid;
};

} // namespace Vorn
