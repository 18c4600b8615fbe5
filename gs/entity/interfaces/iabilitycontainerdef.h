#pragma once

#include "engine/archive/record.h"
#include "engine/datastructures/fixedarray.h"
#include "gs/entity/support/entitydefname.h"

namespace Vorn {

// The abilities of an entity, by slot; an empty name is a free slot.
struct IAbilityContainerDef : Record {
    static constexpr int kSlotCount = 5;

    FixedArray<EntityDefNameOf<EntityType::Ability>, kSlotCount> abilities;

    void Fields(FieldIo& io) override;
};

} // namespace Vorn
