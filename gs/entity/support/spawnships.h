#pragma once

#include "engine/archive/record.h"
#include "engine/datastructures/boundedvector.h"
#include "gs/entity/support/entitydefname.h"

namespace Vorn {

// Ships that are spawned in any case, in a number between two bounds.
struct SpawnShipsRequiredEntity : Record {
    ShipDefName type;
    std::uint32_t minCount = 0;
    std::uint32_t maxCount = 0;

    void Fields(FieldIo& io) override;
};

// Ships that may be drawn, the likelier the greater their weight.
struct SpawnShipsRandomEntity : Record {
    ShipDefName type;
    std::uint32_t weight = 0;

    void Fields(FieldIo& io) override;
};

// Which ships are spawned together.
struct SpawnShips : Record {
    BoundedVector<SpawnShipsRequiredEntity, 7> requiredShips;
    BoundedVector<SpawnShipsRandomEntity, 6> randomShips;

    void Fields(FieldIo& io) override;
};

// Ships to spawn, as many as the points of a fleet between two bounds allow.
struct SpawnShipsWithInternalFleetPoints : Record {
    float minFleetPoints = 0.0f;
    float maxFleetPoints = 0.0f;
    SpawnShips ships;

    void Fields(FieldIo& io) override;
};

} // namespace Vorn
