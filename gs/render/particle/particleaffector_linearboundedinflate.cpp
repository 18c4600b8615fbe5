#include "gs/render/particle/particleaffector_linearboundedinflate.h"

namespace Vorn {

void ParticleAffector_LinearBoundedInflate::Fields(FieldIo& io) {
    ParticleAffector::Fields(io);
    io.Float(u"MinWidth", minWidth);
    io.Float(u"MaxWidth", maxWidth);
    io.Float(u"MinHeight", minHeight);
    io.Float(u"MaxHeight", maxHeight);
}

} // namespace Vorn
