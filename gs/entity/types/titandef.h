#pragma once

#include "gs/entity/interfaces/ibombplanetdefinition.h"
#include "gs/entity/interfaces/ichangemeshdef.h"
#include "gs/entity/interfaces/isquadcontainerdef.h"
#include "gs/entity/interfaces/ititandefinition.h"
#include "gs/entity/types/largeshipdef.h"

namespace Vorn {

// The largest ship, which gains experience and is upgraded. Its list is that of a capital ship around another block.
struct TitanDef : LargeShipDef {
    IBombPlanetDefinition bombPlanet;
    ITitanDefinition titan;
    ISquadContainerDef squads;
    IChangeMeshDef changeMesh;

    void Fields(FieldIo& io) override;
};

} // namespace Vorn
