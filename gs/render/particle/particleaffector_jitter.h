#pragma once

#include "gs/render/particle/particleaffector.h"

namespace Vorn {

// Shakes particles, each by itself or all alike.
class ParticleAffector_Jitter final : public ParticleAffector {
public:
    using ParticleAffector::ParticleAffector;

    void Fields(FieldIo& io) override;

private:
    float jitterForce = 0.0f;
    Bool useCommonForce = false;
};

} // namespace Vorn
