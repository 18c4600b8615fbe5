#include "gs/render/particle/particleemitter_point.h"

namespace Vorn {

void ParticleEmitter_Point::Fields(FieldIo& io) {
    ParticleEmitter::Fields(io);
    io.Float(u"AngleVariance", angleVariance);
}

} // namespace Vorn
