#pragma once

#include "gs/render/particle/particleaffector.h"

namespace Vorn {

// Fades particles in when they are young and out before they die; times in seconds.
class ParticleAffector_Fade final : public ParticleAffector {
public:
    using ParticleAffector::ParticleAffector;

    void Fields(FieldIo& io) override;

private:
    Bool doFadeOut = true;
    float fadeOutTime = 1.0f;
    Bool doFadeIn = false;
    float fadeInTime = 1.0f;
};

} // namespace Vorn
