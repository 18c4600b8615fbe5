#include "gs/render/particle/particleaffector_rotateaboutaxis.h"

namespace Vorn {

void ParticleAffector_RotateAboutAxis::Fields(FieldIo& io) {
    ParticleAffector::Fields(io);
    io.Float(u"AngularVelocity", angularVelocity);
    io.Float(u"Radius", radius);
    io.Vector3(u"AxisOfRotation", axisOfRotation);
    io.Vector3(u"AxisOrigin", axisOrigin);
}

} // namespace Vorn
