#pragma once

#include "gs/render/particle/particleaffector.h"

namespace Vorn {

// Grows particles evenly from one size to another.
class ParticleAffector_LinearBoundedInflate final : public ParticleAffector {
public:
    using ParticleAffector::ParticleAffector;

    void Fields(FieldIo& io) override;

private:
    float minWidth = 0.0f;
    float maxWidth = 0.0f;
    float minHeight = 0.0f;
    float maxHeight = 0.0f;
};

} // namespace Vorn
