#pragma once

#include "gs/render/particle/particleaffector.h"

namespace Vorn {

// Swings between two colours. The two alphas are independent of those in the colours.
class ParticleAffector_ColorOscillator final : public ParticleAffector {
public:
    using ParticleAffector::ParticleAffector;

    void Fields(FieldIo& io) override;

private:
    float transitionPeriod = 1.0f;
    Color startColor = {1.0f, 1.0f, 1.0f, 1.0f};
    float startAlpha = 1.0f;
    Color endColor = {1.0f, 1.0f, 1.0f, 1.0f};
    float endAlpha = 1.0f;
};

} // namespace Vorn
