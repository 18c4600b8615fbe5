#pragma once

#include "gs/entity/support/cargoshipcontrollerdef.h"

namespace Vorn {

// What makes a structure a trade port.
struct ITradePortDefinition : Record {
    CargoShipControllerDef cargoShipController;

    void Fields(FieldIo& io) override;
};

} // namespace Vorn
