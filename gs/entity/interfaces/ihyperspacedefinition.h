#pragma once

#include "engine/archive/record.h"
#include "gs/entity/support/soundid.h"
#include "gs/render/particle/particlesimulationdefinitionref.h"

namespace Vorn {

// The effects of a jump, where an entity has its own.
struct IHyperspaceDefinition : Record {
    struct HyperspaceEffects : Record {
        ParticleSimulationDefinitionRef chargeUpEffectName;
        ParticleSimulationDefinitionRef chargeUpEffectNameBetweenStars;
        ParticleSimulationDefinitionRef chargeUpEffectNameDestabilized;
        SoundID chargeUpEffectSoundID;
        ParticleSimulationDefinitionRef travelEffectName;
        ParticleSimulationDefinitionRef travelEffectNameBetweenStars;
        ParticleSimulationDefinitionRef travelEffectNameDestabilized;
        SoundID travelEffectSoundID;
        ParticleSimulationDefinitionRef exitEffectName;
        SoundID exitEffectSoundID;

        void Fields(FieldIo& io) override;
    };

    Bool useCustomHyperspaceEffects;
    HyperspaceEffects effects;

    void Fields(FieldIo& io) override;
};

} // namespace Vorn
