#include "gs/render/particle/particleaffector_jitter.h"

namespace Vorn {

void ParticleAffector_Jitter::Fields(FieldIo& io) {
    ParticleAffector::Fields(io);
    io.Float(u"JitterForce", jitterForce);
    io.Bool(u"UseCommonForce", useCommonForce);
}

} // namespace Vorn
