#pragma once

#include "engine/archive/record.h"
#include "gs/entity/support/sharedenums.h"
#include "gs/entity/support/soundid.h"
#include "gs/render/particle/particlesimulationdefinitionref.h"

namespace Vorn {

// Where on an entity an effect is attached; an ability has its own places, chosen by its index.
struct BuffEffectAttachInfo : Record {
    BuffEffectAttachType attachType = BuffEffectAttachType::Invalid;
    std::uint32_t abilityIndex = 0;

    void Fields(FieldIo& io) override;
};

// An effect attached to an entity, by the entity's size.
struct BuffEffectInfo : Record {
    BuffEffectAttachInfo effectAttachInfo;
    ParticleSimulationDefinitionRef smallEffectName;
    ParticleSimulationDefinitionRef mediumEffectName;
    ParticleSimulationDefinitionRef largeEffectName;
    SoundID soundID;

    void Fields(FieldIo& io) override;
};

} // namespace Vorn
