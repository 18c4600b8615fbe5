#pragma once

#include "gs/entity/entitydef.h"
#include "gs/entity/interfaces/iattackerdefinition.h"
#include "gs/entity/interfaces/idamagedefinition.h"
#include "gs/entity/interfaces/ihuddefinition.h"
#include "gs/entity/interfaces/irenderdefinition.h"
#include "gs/entity/interfaces/irigidbodydefinition.h"
#include "gs/entity/interfaces/ishipphysicsdefinition.h"
#include "gs/entity/interfaces/iuserinterfacedef.h"
#include "gs/entity/interfaces/iweaponownerdefinition.h"
#include "gs/entity/support/researchenums.h"
#include "gs/entity/support/soundid.h"
#include "gs/render/particle/particlesimulationdefinitionref.h"

namespace Vorn {

// One craft of a squad.
struct FighterDef : EntityDef {
    IAttackerDefinition attacker;
    IDamageDefinition damage;
    IHUDDefinition hud;
    IUserInterfaceDef userInterface;
    FixedString<256> nameStringID;
    FixedString<256> counterDescriptionStringID;
    PlayerEntityCountType statCountType = PlayerEntityCountType::Invalid;
    float formationOffsetDistance = 0.0f;
    IRigidBodyDefinition rigidBody;
    IShipPhysicsDefinition physics;
    IWeaponOwnerDefinition weaponOwner;
    FixedString<256> meshName;
    ParticleSimulationDefinitionRef exhaustParticleSystemName;
    ParticleSimulationDefinitionRef explosionName;
    FixedString<256> exhaustTrailTextureName;
    float exhaustTrailWidth = 0.0f;
    SoundID engineSoundID;
    float maxHullPoints = 0.0f;
    float hullPointRestoreRate = 0.0f;
    float armorPoints = 0.0f;
    float maxMitigation = 0.0f;
    float experiencePointsForDestroying = 0.0f;
    IRenderDefinition render;

    void Fields(FieldIo& io) override;
};

} // namespace Vorn
