#pragma once

#include "gs/render/particle/particleaffector.h"

namespace Vorn {

// What the affectors that push particles along a line have in common.
class ParticleAffector_LinearForce : public ParticleAffector {
public:
    using ParticleAffector::ParticleAffector;

    void Fields(FieldIo& io) override;

private:
    float minForce = 1.0f;
    float maxForce = 1.0f;
};

} // namespace Vorn
