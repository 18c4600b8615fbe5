#pragma once

#include "engine/archive/record.h"
#include "gs/render/particle/particlesimulationdefinitionref.h"

namespace Vorn {

// How long it takes to build an entity, and what shows meanwhile. -1 marks a time that the file does not give.
struct IBuildOverTimeDefinition : Record {
    float baseBuildTime = -1.0f;
    ParticleSimulationDefinitionRef buildEffectName;

    void Fields(FieldIo& io) override;
};

} // namespace Vorn
