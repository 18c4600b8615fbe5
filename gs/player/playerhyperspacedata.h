#pragma once

#include "engine/archive/record.h"
#include "engine/datastructures/fixedarray.h"
#include "gs/entity/support/soundid.h"
#include "gs/render/particle/particlesimulationdefinitionref.h"

namespace Vorn {

// How the ships of a player travel between planets, with the effects of a jump for each class of ship.
struct PlayerHyperspaceData : Record {
    struct JumpEffects {
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
    };
    static constexpr int kShipClassCount = 3;

    FixedArray<JumpEffects, kShipClassCount> jumpEffects;
    float baseHyperspaceSpeed = 0.0f;
    float hyperspaceSpeedBetweenStarsMultiplier = 0.0f;
    float hyperspaceSpeedToFriendlyOrbitBodiesMultiplier = 0.0f;
    float baseHyperspaceAntiMatterCost = 0.0f;
    float baseHyperspaceChargeUpTime = 0.0f;

    void Fields(FieldIo& io) override;
};

} // namespace Vorn
