#pragma once

#include "gs/entity/entitydef.h"
#include "gs/entity/interfaces/iabilitycontainerdef.h"
#include "gs/entity/interfaces/iattackerdefinition.h"
#include "gs/entity/interfaces/iautorotatedef.h"
#include "gs/entity/interfaces/ibuildovertimedefinition.h"
#include "gs/entity/interfaces/ichangemeshdef.h"
#include "gs/entity/interfaces/idamagedefinition.h"
#include "gs/entity/interfaces/iformationmemberdefinition.h"
#include "gs/entity/interfaces/ihuddefinition.h"
#include "gs/entity/interfaces/ihyperspacedefinition.h"
#include "gs/entity/interfaces/irenderdefinition.h"
#include "gs/entity/interfaces/irigidbodydefinition.h"
#include "gs/entity/interfaces/ishielddefinition.h"
#include "gs/entity/interfaces/ishipphysicsdefinition.h"
#include "gs/entity/interfaces/isquadcontainerdef.h"
#include "gs/entity/interfaces/istarbasedef.h"
#include "gs/entity/interfaces/itradeportdefinition.h"
#include "gs/entity/interfaces/iunitsounddefinition.h"
#include "gs/entity/interfaces/iuserinterfacedef.h"
#include "gs/entity/interfaces/iweaponownerdefinition.h"
#include "gs/entity/support/namedeffects.h"

namespace Vorn {

// A base in space.
struct StarBaseDef : EntityDef {
    IAbilityContainerDef abilities;
    IAttackerDefinition attacker;
    IDamageDefinition damage;
    IHUDDefinition hud;
    IUserInterfaceDef userInterface;
    IWeaponOwnerDefinition weaponOwner;
    IShieldDefinition shield;
    ISquadContainerDef squads;
    IStarBaseDef starBase;
    IChangeMeshDef changeMesh;
    IUnitSoundDefinition unitSound;
    ExplosionEffectDefGroupRef explosionName;
    IFormationMemberDefinition formationMember;
    IRenderDefinition render;
    ITradePortDefinition tradePort;
    IBuildOverTimeDefinition buildOverTime;
    IAutoRotateDef autoRotate;
    IShipPhysicsDefinition physics;
    IHyperspaceDefinition hyperspace;
    IRigidBodyDefinition rigidBody;

    void Fields(FieldIo& io) override;
};

} // namespace Vorn
