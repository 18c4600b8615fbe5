#include "gs/render/particle/particleaffector_killparticlesnearpoint.h"

namespace Vorn {

void ParticleAffector_KillParticlesNearPoint::Fields(FieldIo& io) {
    ParticleAffector::Fields(io);
    io.Vector3(u"Point", point);
    io.Float(u"Distance", distance);
}

} // namespace Vorn
