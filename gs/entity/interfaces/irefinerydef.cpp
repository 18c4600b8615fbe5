#include "gs/entity/interfaces/irefinerydef.h"

namespace Vorn {

void IRefineryDef::Fields(FieldIo& io) {
    io.Block(cargoShipController);
}

} // namespace Vorn
