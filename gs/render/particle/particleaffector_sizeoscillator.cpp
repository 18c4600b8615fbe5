#include "gs/render/particle/particleaffector_sizeoscillator.h"

namespace Vorn {

void ParticleAffector_SizeOscillator::Fields(FieldIo& io) {
    ParticleAffector::Fields(io);
    io.Float(u"TransitionPeriod", transitionPeriod);
    io.Float(u"BeginSizeX", beginSizeX);
    io.Float(u"BeginSizeY", beginSizeY);
    io.Float(u"EndSizeX", endSizeX);
    io.Float(u"EndSizeY", endSizeY);
}

} // namespace Vorn
