#pragma once

#include "gs/entity/entitydef.h"
#include "gs/entity/interfaces/ifleetdefinition.h"

namespace Vorn {

// A fleet of ships.
struct FleetDef : EntityDef {
    IFleetDefinition fleet;

    void Fields(FieldIo& io) override { io.Block(fleet); }
};

} // namespace Vorn
