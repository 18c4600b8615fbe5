#pragma once

#include "gs/render/particle/particleaffector.h"

namespace Vorn {

// Slows particles down.
class ParticleAffector_Drag final : public ParticleAffector {
public:
    using ParticleAffector::ParticleAffector;

    void Fields(FieldIo& io) override;

private:
    float dragCoefficient = 1.0f;
};

} // namespace Vorn
