#pragma once

#include "gs/render/particle/particleaffector.h"

namespace Vorn {

// Ends particles that come closer to a point than a distance.
class ParticleAffector_KillParticlesNearPoint final : public ParticleAffector {
public:
    using ParticleAffector::ParticleAffector;

    void Fields(FieldIo& io) override;

private:
    Vector3 point;
    float distance = 1.0f;
};

} // namespace Vorn
