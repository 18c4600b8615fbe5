#pragma once

#include "engine/archive/record.h"
#include "gs/render/particle/particlesimulationdefinitionref.h"

namespace Vorn {

// How long it takes to build an entity, and the effect shown meanwhile. A time of -1 means that the file has none.
struct IBuildOverTimeDefinition : Record {
    float baseBuildTime = -1.0f;
    ParticleSimulationDefinitionRef buildEffectName;

    void Fields(FieldIo& io) override;
};

} // namespace Vorn
