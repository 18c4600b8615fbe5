#pragma once

#include "gs/entity/entitydef.h"
#include "gs/entity/interfaces/ititanupgradedef.h"

namespace Vorn {

// An upgrade of a titan. Icons are in its stages alone.
struct TitanUpgradeDef : EntityDef {
    ITitanUpgradeDef upgrade;

    void Fields(FieldIo& io) override;
};

} // namespace Vorn
