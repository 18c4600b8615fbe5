#include "gs/render/particle/particleaffector_fade.h"

namespace Vorn {

void ParticleAffector_Fade::Fields(FieldIo& io) {
    ParticleAffector::Fields(io);
    io.Bool(u"DoFadeOut", doFadeOut);
    io.Float(u"FadeOutTime", fadeOutTime);
    io.Bool(u"DoFadeIn", doFadeIn);
    io.Float(u"FadeInTime", fadeInTime);
}

} // namespace Vorn
