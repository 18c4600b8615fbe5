#pragma once

#include "gs/entity/interfaces/ichangemeshdef.h"
#include "gs/entity/interfaces/ititandefinition.h"
#include "gs/entity/types/largeshipdef.h"

namespace Vorn {

// A ship for show: a titan without bombs and squads.
struct CosmeticDef : LargeShipDef {
    ITitanDefinition titan;
    IChangeMeshDef changeMesh;

    void Fields(FieldIo& io) override;
};

} // namespace Vorn
