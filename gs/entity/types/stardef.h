#pragma once

#include "gs/entity/entitydef.h"
#include "gs/entity/interfaces/iabilitycontainerdef.h"
#include "gs/entity/interfaces/ihuddefinition.h"
#include "gs/entity/interfaces/iorbitbodydefinition.h"
#include "gs/entity/interfaces/irenderdefinition.h"
#include "gs/entity/interfaces/istardefinition.h"
#include "gs/entity/interfaces/iuserinterfacedef.h"

namespace Vorn {

// A kind of star.
struct StarDef : EntityDef {
    IStarDefinition star;
    IAbilityContainerDef abilities;
    IHUDDefinition hud;
    IUserInterfaceDef userInterface;
    IOrbitBodyDefinition orbitBody;
    BrushRef mainViewIcon;
    BrushRef picture;
    FixedString<256> meshName;
    float maxMeshVisibilityDistanceToCamera = -1.0f;
    IRenderDefinition render;

    void Fields(FieldIo& io) override;
};

} // namespace Vorn
