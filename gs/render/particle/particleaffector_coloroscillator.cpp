#include "gs/render/particle/particleaffector_coloroscillator.h"

namespace Vorn {

void ParticleAffector_ColorOscillator::Fields(FieldIo& io) {
    ParticleAffector::Fields(io);
    io.Float(u"TransitionPeriod", transitionPeriod);
    io.Color(u"StartColor", startColor);
    io.Float(u"StartAlpha", startAlpha);
    io.Color(u"EndColor", endColor);
    io.Float(u"EndAlpha", endAlpha);
}

} // namespace Vorn
