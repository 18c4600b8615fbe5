#pragma once

#include "gs/entity/entitydef.h"
#include "gs/entity/interfaces/ifleetdefinition.h"

namespace Vorn {

// A fleet of ships.
class FleetDef : public EntityDef {
public:
    void Fields(FieldIo& io) override { io.Block(fleet); }

private:
    IFleetDefinition fleet;
};

} // namespace Vorn
