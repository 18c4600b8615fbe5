#pragma once

#include "gs/render/particle/particleaffector.h"

namespace Vorn {

// Swings between two sizes.
class ParticleAffector_SizeOscillator final : public ParticleAffector {
public:
    using ParticleAffector::ParticleAffector;

    void Fields(FieldIo& io) override;

private:
    float transitionPeriod = 1.0f;
    float beginSizeX = 1.0f;
    float beginSizeY = 1.0f;
    float endSizeX = 3.0f;
    float endSizeY = 3.0f;
};

} // namespace Vorn
