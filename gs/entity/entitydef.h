#pragma once

#include "engine/archive/record.h"
#include "gs/entity/support/entitydefname.h"
#include "gs/entity/support/entitytype.h"

namespace Vorn {

// A definition of a kind of thing in the game. Name and type are not among its fields: the name is that of the file,
// and the type stands in front of what the definition writes. Definitions are large and live on the heap alone.
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
