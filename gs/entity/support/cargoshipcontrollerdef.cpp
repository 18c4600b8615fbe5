#include "gs/entity/support/cargoshipcontrollerdef.h"

namespace Vorn {

void CargoShipControllerDef::Fields(FieldIo& io) {
    io.Value(u"cargoShipType", cargoShipType);
    io.Uint(u"maxCargoShipCount", maxCargoShipCount);
    io.Float(u"cargoShipRespawnTime", cargoShipRespawnTime);
}

} // namespace Vorn
