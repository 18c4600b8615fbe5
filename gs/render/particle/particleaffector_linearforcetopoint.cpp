#include "gs/render/particle/particleaffector_linearforcetopoint.h"

namespace Vorn {

void ParticleAffector_LinearForceToPoint::Fields(FieldIo& io) {
    ParticleAffector_LinearForce::Fields(io);
    io.Vector3(u"Point", point);
}

} // namespace Vorn
