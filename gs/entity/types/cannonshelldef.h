#pragma once

#include "engine/window/brushref.h"
#include "gs/entity/entitydef.h"
#include "gs/entity/interfaces/ihuddefinition.h"
#include "gs/entity/interfaces/irenderdefinition.h"
#include "gs/entity/interfaces/iuserinterfacedef.h"
#include "gs/entity/support/soundid.h"
#include "gs/render/particle/particlesimulationdefinitionref.h"

namespace Vorn {

// The shell that a cannon sends to another planet.
struct CannonShellDef : EntityDef {
    float acceleration = 0.0f;
    float startingSpeed = 0.0f;
    float maxSpeed = 0.0f;
    EntityDefNameOf<EntityType::Buff> buffToApplyOnImpact;
    ParticleSimulationDefinitionRef planetImpactEffectName;
    SoundIDVector planetImpactSounds;
    float planetImpactCameraShakeMaxSize = 0.0f;
    float planetImpactCameraShakeStrength = 0.0f;
    float planetImpactCameraShakeDuration = 0.0f;
    FixedString<256> meshName;
    BrushRef mainViewIcon;
    BrushRef picture;
    FixedString<256> nameStringID;
    FixedString<256> descStringID;
    Bool renderMesh;
    IUserInterfaceDef userInterface;
    IHUDDefinition hud;
    IRenderDefinition render;

    void Fields(FieldIo& io) override;
};

} // namespace Vorn
