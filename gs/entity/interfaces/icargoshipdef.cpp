#include "gs/entity/interfaces/icargoshipdef.h"

namespace Vorn {

void ICargoShipDef::Fields(FieldIo& io) {
    io.Enum(u"cargoType", cargoType);
    io.Float(u"maxCargoCapacity", maxCargoCapacity);
}

} // namespace Vorn
