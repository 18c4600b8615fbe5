#pragma once

#include "gs/entity/entitydef.h"
#include "gs/entity/interfaces/iabilitycontainerdef.h"
#include "gs/entity/interfaces/iattackerdefinition.h"
#include "gs/entity/interfaces/ibombplanetdefinition.h"
#include "gs/entity/interfaces/icargoshipdef.h"
#include "gs/entity/interfaces/ichangemeshdef.h"
#include "gs/entity/interfaces/idamagedefinition.h"
#include "gs/entity/interfaces/ienvoydef.h"
#include "gs/entity/interfaces/ifleetmemberdefinition.h"
#include "gs/entity/interfaces/iformationmemberdefinition.h"
#include "gs/entity/interfaces/ifrigatedefinition.h"
#include "gs/entity/interfaces/ihuddefinition.h"
#include "gs/entity/interfaces/ihyperspacedefinition.h"
#include "gs/entity/interfaces/irenderdefinition.h"
#include "gs/entity/interfaces/irigidbodydefinition.h"
#include "gs/entity/interfaces/ishielddefinition.h"
#include "gs/entity/interfaces/ishipphysicsdefinition.h"
#include "gs/entity/interfaces/isquadcontainerdef.h"
#include "gs/entity/interfaces/iunitsounddefinition.h"
#include "gs/entity/interfaces/iuserinterfacedef.h"
#include "gs/entity/interfaces/iweaponownerdefinition.h"
#include "gs/entity/support/bufflevelfloattable.h"
#include "gs/entity/support/soundid.h"
#include "gs/render/particle/particlesimulationdefinitionref.h"

namespace Vorn {

// A small ship. Its weapons are those of level 0; a frigate with weapon levels holds the factors of damage and cooldown
// for each level, and checks require both to be 1 at level 0.
struct FrigateDef : EntityDef {
    IAttackerDefinition attacker;
    IFleetMemberDefinition fleetMember;
    IBombPlanetDefinition bombPlanet;
    IFrigateDefinition frigate;
    IDamageDefinition damage;
    IHUDDefinition hud;
    IUserInterfaceDef userInterface;
    IWeaponOwnerDefinition weaponOwner;
    Bool hasWeaponLevels;
    BuffLevelFloatTable weaponDamageMult;
    BuffLevelFloatTable weaponCooldownMult;
    IRigidBodyDefinition rigidBody;
    IShieldDefinition shield;
    IShipPhysicsDefinition physics;
    IHyperspaceDefinition hyperspace;
    ISquadContainerDef squads;
    std::uint32_t maxNumCommandPoints = 0;
    IUnitSoundDefinition unitSound;
    IChangeMeshDef changeMesh;
    ParticleSimulationDefinitionRef exhaustParticleSystemName;
    ParticleSimulationDefinitionRef explosionName;
    SoundID engineSoundID;
    IAbilityContainerDef abilities;
    float maxAntiMatter = 0.0f;
    float antiMatterRestoreRate = 0.0f;
    ICargoShipDef cargoShip;
    IFormationMemberDefinition formationMember;
    IRenderDefinition render;
    IEnvoyDef envoy;

    void Fields(FieldIo& io) override;

private:
    void WeaponLevelFields(FieldIo& io);
};

} // namespace Vorn
