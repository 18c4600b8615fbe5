#pragma once

#include "gs/entity/entitydef.h"
#include "gs/entity/interfaces/ititanupgradedef.h"

namespace Vorn {

// An upgrade of a titan with its stages.
struct TitanUpgradeDef : EntityDef {
    ITitanUpgradeDef upgrade;

    void Fields(FieldIo& io) override;
};

} // namespace Vorn
