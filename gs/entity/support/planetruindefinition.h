#pragma once

#include "engine/archive/record.h"
#include "gs/entity/support/entitydefname.h"
#include "gs/entity/support/sharedenums.h"
#include "gs/entity/support/soundid.h"
#include "gs/render/particle/particlesimulationdefinitionref.h"

namespace Vorn {

// What remains of a planet that was stripped to the core, and what the player gains.
struct PlanetRuinDefinition : Record {
    EntityDefNameOf<EntityType::Planet> ruinPlanetType;
    BuffEffectAttachType attachType = BuffEffectAttachType::Invalid;
    ParticleSimulationDefinitionRef effectName;
    float startTime = 0.0f;
    SoundID soundID;
    float creditsOnStrippedToTheCore = 0.0f;
    float metalOnStrippedToTheCore = 0.0f;
    float crystalOnStrippedToTheCore = 0.0f;
    float extraScuttleTimeOnStrip = 0.0f;

    void Fields(FieldIo& io) override;
};

} // namespace Vorn
