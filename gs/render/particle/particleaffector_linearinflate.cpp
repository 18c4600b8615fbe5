#include "gs/render/particle/particleaffector_linearinflate.h"

namespace Vorn {

void ParticleAffector_LinearInflate::Fields(FieldIo& io) {
    ParticleAffector::Fields(io);
    io.Float(u"WidthInflateRate", widthInflateRate);
    io.Float(u"HeightInflateRate", heightInflateRate);
}

} // namespace Vorn
