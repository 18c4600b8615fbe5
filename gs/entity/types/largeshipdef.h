#pragma once

#include "gs/entity/entitydef.h"
#include "gs/entity/interfaces/iabilitycontainerdef.h"
#include "gs/entity/interfaces/iattackerdefinition.h"
#include "gs/entity/interfaces/idamagedefinition.h"
#include "gs/entity/interfaces/ifleetmemberdefinition.h"
#include "gs/entity/interfaces/iformationmemberdefinition.h"
#include "gs/entity/interfaces/ihuddefinition.h"
#include "gs/entity/interfaces/ihyperspacedefinition.h"
#include "gs/entity/interfaces/irenderdefinition.h"
#include "gs/entity/interfaces/irigidbodydefinition.h"
#include "gs/entity/interfaces/ishielddefinition.h"
#include "gs/entity/interfaces/ishipphysicsdefinition.h"
#include "gs/entity/interfaces/iunitsounddefinition.h"
#include "gs/entity/interfaces/iuserinterfacedef.h"
#include "gs/entity/interfaces/iweaponownerdefinition.h"
#include "gs/entity/support/experiencelevelfloattable.h"
#include "gs/entity/support/soundid.h"
#include "gs/render/particle/particlesimulationdefinitionref.h"

namespace Vorn {

// What capital ships, titans and cosmetic ships have in common, in three groups, each one at its place in their lists
// of fields.
struct LargeShipDef : EntityDef {
    IAbilityContainerDef abilities;
    IAttackerDefinition attacker;
    IFleetMemberDefinition fleetMember;
    IDamageDefinition damage;
    IHUDDefinition hud;
    IUserInterfaceDef userInterface;
    IWeaponOwnerDefinition weaponOwner;
    IRigidBodyDefinition rigidBody;
    IShieldDefinition shield;
    IShipPhysicsDefinition physics;
    IHyperspaceDefinition hyperspace;
    IUnitSoundDefinition unitSound;
    ParticleSimulationDefinitionRef exhaustParticleSystemName;
    ParticleSimulationDefinitionRef explosionName;
    ExperienceLevelFloatTable commandPoints;
    ExperienceLevelFloatTable weaponCooldownDecreasePerc;
    ExperienceLevelFloatTable weaponDamageIncreasePerc;
    SoundID engineSoundID;
    IFormationMemberDefinition formationMember;
    IRenderDefinition render;

protected:
    // Abilities to fleet.
    void CommandFields(FieldIo& io);
    // Damage to hyperspace.
    void BodyFields(FieldIo& io);
    // Exhaust to the end.
    void TailFields(FieldIo& io);
};

} // namespace Vorn
