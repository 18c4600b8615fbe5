#pragma once

#include "gs/render/particle/particleaffector_linearforce.h"

namespace Vorn {

// Pushes particles in one direction.
class ParticleAffector_LinearForceInDirection final : public ParticleAffector_LinearForce {
public:
    using ParticleAffector_LinearForce::ParticleAffector_LinearForce;

    void Fields(FieldIo& io) override;

private:
    Vector3 direction = {1.0f, 0.0f, 0.0f};
};

} // namespace Vorn
