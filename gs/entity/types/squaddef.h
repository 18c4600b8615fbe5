#pragma once

#include "gs/entity/entitydef.h"
#include "gs/entity/interfaces/iabilitycontainerdef.h"
#include "gs/entity/interfaces/iattackerdefinition.h"
#include "gs/entity/interfaces/ihuddefinition.h"
#include "gs/entity/interfaces/irenderdefinition.h"
#include "gs/entity/interfaces/isquaddefinition.h"
#include "gs/entity/interfaces/iunitsounddefinition.h"

namespace Vorn {

// A group of fighters that a larger entity launches.
struct SquadDef : EntityDef {
    IAttackerDefinition attacker;
    IHUDDefinition hud;
    ISquadDefinition squad;
    IUnitSoundDefinition unitSound;
    IRenderDefinition render;
    IAbilityContainerDef abilities;

    void Fields(FieldIo& io) override;
};

} // namespace Vorn
