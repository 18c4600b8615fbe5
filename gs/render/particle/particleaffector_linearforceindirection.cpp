#include "gs/render/particle/particleaffector_linearforceindirection.h"

namespace Vorn {

void ParticleAffector_LinearForceInDirection::Fields(FieldIo& io) {
    ParticleAffector_LinearForce::Fields(io);
    io.Vector3(u"Direction", direction);
}

} // namespace Vorn
