#pragma once

#include "gs/render/particle/particleaffector.h"

namespace Vorn {

// Grows particles by a size a second.
class ParticleAffector_LinearInflate final : public ParticleAffector {
public:
    using ParticleAffector::ParticleAffector;

    void Fields(FieldIo& io) override;

private:
    float widthInflateRate = 1.0f;
    float heightInflateRate = 1.0f;
};

} // namespace Vorn
