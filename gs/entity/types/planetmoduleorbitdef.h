#pragma once

#include "gs/entity/entitydef.h"
#include "gs/entity/interfaces/iabilitycontainerdef.h"
#include "gs/entity/interfaces/iautorotatedef.h"
#include "gs/entity/interfaces/ibuildovertimedefinition.h"
#include "gs/entity/interfaces/ichangemeshdef.h"
#include "gs/entity/interfaces/idamagedefinition.h"
#include "gs/entity/interfaces/iformationmemberdefinition.h"
#include "gs/entity/interfaces/ihuddefinition.h"
#include "gs/entity/interfaces/iplanetmoduledefinition.h"
#include "gs/entity/interfaces/irenderdefinition.h"
#include "gs/entity/interfaces/ishielddefinition.h"
#include "gs/entity/interfaces/iunitsounddefinition.h"
#include "gs/entity/interfaces/iuserinterfacedef.h"
#include "gs/entity/support/namedeffects.h"

namespace Vorn {

// What all modules in orbit have in common; the fields of each class follow them in the file.
struct PlanetModuleOrbitDef : EntityDef {
    IUserInterfaceDef userInterface;
    IAbilityContainerDef abilities;
    float maxAntiMatter = 0.0f;
    float antiMatterRestoreRate = 0.0f;
    IDamageDefinition damage;
    IHUDDefinition hud;
    IPlanetModuleDefinition planetModule;
    IAutoRotateDef autoRotate;
    IShieldDefinition shield;
    IUnitSoundDefinition unitSound;
    IChangeMeshDef changeMesh;
    ExplosionEffectDefGroupRef explosionName;
    BrushRef mainViewIcon;
    BrushRef picture;
    IRenderDefinition render;
    IFormationMemberDefinition formationMember;
    IBuildOverTimeDefinition buildOverTime;

    void Fields(FieldIo& io) override;
};

} // namespace Vorn
