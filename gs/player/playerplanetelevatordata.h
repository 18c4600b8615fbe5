#pragma once

#include "engine/archive/record.h"
#include "engine/datastructures/fixedarray.h"

namespace Vorn {

// The meshes that move goods between a planet and its modules, one for each kind of module that has an elevator.
struct PlayerPlanetElevatorData : Record {
    FixedArray<FixedString<256>, 7> meshNames;

    void Fields(FieldIo& io) override;
};

} // namespace Vorn
