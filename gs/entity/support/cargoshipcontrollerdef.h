#pragma once

#include "engine/archive/record.h"
#include "gs/entity/support/entitydefname.h"

namespace Vorn {

// The cargo ships that a structure sends out and replaces.
struct CargoShipControllerDef : Record {
    EntityDefNameOf<EntityType::Frigate> cargoShipType;
    std::uint32_t maxCargoShipCount = 0;
    float cargoShipRespawnTime = 0.0f;

    void Fields(FieldIo& io) override;
};

} // namespace Vorn
