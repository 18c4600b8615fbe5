#pragma once

#include "gs/entity/support/cargoshipcontrollerdef.h"

namespace Vorn {

// What makes a structure a refinery.
struct IRefineryDef : Record {
    CargoShipControllerDef cargoShipController;

    void Fields(FieldIo& io) override;
};

} // namespace Vorn
