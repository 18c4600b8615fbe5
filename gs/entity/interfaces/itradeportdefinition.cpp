#include "gs/entity/interfaces/itradeportdefinition.h"

namespace Vorn {

void ITradePortDefinition::Fields(FieldIo& io) {
    io.Block(cargoShipController);
}

} // namespace Vorn
