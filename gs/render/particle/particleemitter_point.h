#pragma once

#include "gs/render/particle/particleemitter.h"

#include <numbers>

namespace Vorn {

// Emits from a point, up to an angle in radians off the forward direction; pi is every direction.
class ParticleEmitter_Point final : public ParticleEmitter {
public:
    using ParticleEmitter::ParticleEmitter;

    void Fields(FieldIo& io) override;

private:
    float angleVariance = std::numbers::pi_v<float>;
};

} // namespace Vorn
