#include "gs/render/particle/particleaffector_linearforce.h"

namespace Vorn {

void ParticleAffector_LinearForce::Fields(FieldIo& io) {
    ParticleAffector::Fields(io);
    io.Float(u"MinForce", minForce);
    io.Float(u"MaxForce", maxForce);
}

} // namespace Vorn
