#pragma once

#include "gs/entity/entitydef.h"
#include "gs/entity/interfaces/iabilitycontainerdef.h"
#include "gs/entity/interfaces/iorbitbodydefinition.h"
#include "gs/entity/interfaces/iplanetdefinition.h"
#include "gs/entity/interfaces/irenderdefinition.h"
#include "gs/entity/interfaces/ishielddefinition.h"

namespace Vorn {

// A kind of planet or asteroid.
struct PlanetDef : EntityDef {
    IPlanetDefinition planet;
    IShieldDefinition shield;
    IOrbitBodyDefinition orbitBody;
    IRenderDefinition render;
    IAbilityContainerDef abilities;

    void Fields(FieldIo& io) override;
};

} // namespace Vorn
