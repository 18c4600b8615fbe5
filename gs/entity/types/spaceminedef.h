#pragma once

#include "gs/entity/entitydef.h"
#include "gs/entity/interfaces/iabilitycontainerdef.h"
#include "gs/entity/interfaces/idamagedefinition.h"
#include "gs/entity/interfaces/ihuddefinition.h"
#include "gs/entity/interfaces/irenderdefinition.h"
#include "gs/entity/interfaces/irigidbodydefinition.h"
#include "gs/entity/interfaces/ishipphysicsdefinition.h"
#include "gs/entity/interfaces/ispaceminedef.h"
#include "gs/entity/interfaces/iunitsounddefinition.h"
#include "gs/entity/interfaces/iuserinterfacedef.h"
#include "gs/entity/support/namedeffects.h"

namespace Vorn {

// A mine in space.
struct SpaceMineDef : EntityDef {
    IAbilityContainerDef abilities;
    IDamageDefinition damage;
    IHUDDefinition hud;
    BrushRef picture;
    BrushRef mainViewIcon;
    IUserInterfaceDef userInterface;
    FixedString<256> meshName;
    ISpaceMineDef spaceMine;
    ExplosionEffectDefGroupRef explosionName;
    IRenderDefinition render;
    IRigidBodyDefinition rigidBody;
    IShipPhysicsDefinition physics;
    IUnitSoundDefinition unitSound;
    float maxHullPoints = 0.0f;
    float hullPointRestoreRate = 0.0f;
    float maxShieldPoints = 0.0f;
    float shieldPointRestoreRate = 0.0f;
    float maxShieldMitigation = 0.0f;
    float armorPoints = 0.0f;
    float experiencePointsForDestroying = 0.0f;
    float baseMaxAntiMatter = 0.0f;
    float baseAntiMatterRestoreRate = 0.0f;

    void Fields(FieldIo& io) override;
};

} // namespace Vorn
