#pragma once

#include "gs/entity/interfaces/ibombplanetdefinition.h"
#include "gs/entity/interfaces/icapitalshipdefinition.h"
#include "gs/entity/interfaces/ichangemeshdef.h"
#include "gs/entity/interfaces/isquadcontainerdef.h"
#include "gs/entity/types/largeshipdef.h"

namespace Vorn {

// A large ship that gains experience.
struct CapitalShipDef : LargeShipDef {
    IBombPlanetDefinition bombPlanet;
    ICapitalShipDefinition capitalShip;
    ISquadContainerDef squads;
    IChangeMeshDef changeMesh;

    void Fields(FieldIo& io) override;
};

} // namespace Vorn
