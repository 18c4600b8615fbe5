#pragma once

#include "engine/archive/record.h"
#include "gs/entity/support/soundid.h"
#include "gs/render/particle/particlesimulationdefinitionref.h"

namespace Vorn {

// The effects of a jump, where an entity has its own. A file older than kHyperspaceEffectsVersion does not have this
// block but two sounds at another place, which the owner reads with OldSoundFields. Without custom effects they are
// kept but not written.
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
    void OldSoundFields(FieldIo& io);
};

} // namespace Vorn
