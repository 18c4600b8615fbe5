#pragma once

#include "gs/entity/entitydef.h"
#include "gs/entity/interfaces/irenderdefinition.h"
#include "gs/entity/interfaces/iresourceasteroiddef.h"
#include "gs/entity/interfaces/iuserinterfacedef.h"

namespace Vorn {

// An asteroid to extract a resource from.
struct ResourceAsteroidDef : EntityDef {
    IResourceAsteroidDef resourceAsteroid;
    IRenderDefinition render;
    IUserInterfaceDef userInterface;

    void Fields(FieldIo& io) override;
};

} // namespace Vorn
