#pragma once

#include "gs/render/particle/particleaffector.h"

namespace Vorn {

// Turns particles around an axis.
class ParticleAffector_RotateAboutAxis final : public ParticleAffector {
public:
    using ParticleAffector::ParticleAffector;

    void Fields(FieldIo& io) override;

private:
    float angularVelocity = 1.0f;
    float radius = 1.0f;
    Vector3 axisOfRotation = {1.0f, 0.0f, 0.0f};
    Vector3 axisOrigin;
};

} // namespace Vorn
