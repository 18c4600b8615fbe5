#include "gs/render/particle/particleaffector_drag.h"

namespace Vorn {

void ParticleAffector_Drag::Fields(FieldIo& io) {
    ParticleAffector::Fields(io);
    io.Float(u"DragCoefficient", dragCoefficient);
}

} // namespace Vorn
