#include "gs/entity/types/planetmoduleorbit_tradeportdef.h"

namespace Vorn {

void PlanetModuleOrbit_TradePortDef::Fields(FieldIo& io) {
    PlanetModuleOrbitDef::Fields(io);
    io.Block(tradePort);
    io.Float(u"baseTradeIncomeRate", baseTradeIncomeRate);
}

} // namespace Vorn
