#pragma once

#include "gs/entity/entitydef.h"
#include "gs/entity/interfaces/ientryvehicledefinition.h"
#include "gs/entity/interfaces/irenderdefinition.h"
#include "gs/entity/interfaces/irigidbodydefinition.h"
#include "gs/entity/interfaces/ishipphysicsdefinition.h"

namespace Vorn {

// A vehicle that goes down to a planet.
struct EntryVehicleDef : EntityDef {
    IEntryVehicleDefinition entryVehicle;
    IRigidBodyDefinition rigidBody;
    IShipPhysicsDefinition physics;
    FixedString<256> meshName;
    ParticleSimulationDefinitionRef exhaustParticleSystemName;
    FixedString<256> exhaustTrailTextureName;
    float exhaustTrailWidth = 0.0f;
    SoundID atmosphereEntrySoundID;
    SoundID spaceTravelSoundID;
    IRenderDefinition render;

    void Fields(FieldIo& io) override;
};

} // namespace Vorn
