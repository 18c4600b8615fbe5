#pragma once

#include "gs/render/particle/particleaffector_linearforce.h"

namespace Vorn {

// Pulls particles to a point.
class ParticleAffector_LinearForceToPoint final : public ParticleAffector_LinearForce {
public:
    using ParticleAffector_LinearForce::ParticleAffector_LinearForce;

    void Fields(FieldIo& io) override;

private:
    Vector3 point;
};

} // namespace Vorn
