#pragma once

#include "engine/archive/record.h"
#include "engine/datastructures/fixedarray.h"
#include "gs/entity/support/entitydefname.h"

namespace Vorn {

// The squads that an entity can launch, by slot, each for an amount of antimatter. All slots are stored; an empty name
// is a free one.
struct ISquadContainerDef : Record {
    static constexpr int kSlotCount = 4;

    struct Slot {
        EntityDefNameOf<EntityType::Squad> squadTypeEntityDef;
        float squadAntiMatterCost = 0.0f;
    };

    FixedArray<Slot, kSlotCount> squads;

    void Fields(FieldIo& io) override;
};

} // namespace Vorn
