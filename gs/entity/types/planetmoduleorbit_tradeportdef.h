#pragma once

#include "gs/entity/interfaces/itradeportdefinition.h"
#include "gs/entity/types/planetmoduleorbitdef.h"

namespace Vorn {

// A module that sends out ships for trade.
struct PlanetModuleOrbit_TradePortDef : PlanetModuleOrbitDef {
    ITradePortDefinition tradePort;
    float baseTradeIncomeRate = 0.0f;

    void Fields(FieldIo& io) override;
};

} // namespace Vorn
