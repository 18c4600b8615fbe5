#pragma once

#include "gs/entity/entitydef.h"
#include "gs/entity/interfaces/istarbaseupgradedef.h"

namespace Vorn {

// An upgrade of a star base. Icons are in its stages alone.
struct StarBaseUpgradeDef : EntityDef {
    IStarBaseUpgradeDef upgrade;

    void Fields(FieldIo& io) override;
};

} // namespace Vorn
