#pragma once

#include "engine/archive/record.h"
#include "gs/entity/support/soundid.h"
#include "gs/render/particle/particlesimulationdefinitionref.h"

namespace Vorn {

// What shows and sounds as a vehicle starts, enters an atmosphere and hits the ground.
struct IEntryVehicleDefinition : Record {
    FixedString<256> atmosphereEntryEffectName;
    Bool hasSurfaceImpactEffect;
    ParticleSimulationDefinitionRef surfaceImpactEffectName;
    SoundID surfaceImpactSoundID;
    SoundID launchSoundID;

    void Fields(FieldIo& io) override;
};

} // namespace Vorn
