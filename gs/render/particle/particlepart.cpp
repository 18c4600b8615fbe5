#include "gs/render/particle/particlepart.h"

namespace Vorn {

void ParticlePart::NameFields(FieldIo& io) {
    Name fileName = name;
    io.String(u"Name", fileName);
    if (io.Reading()) {
        SetName(fileName.View());
    }
    io.Bool(u"Enabled", enabled);
}

void ParticlePart::TimeFields(FieldIo& io) {
    io.Float(u"StartTime", startTime);
    io.Bool(u"HasInfiniteLifeTime", hasInfiniteLifeTime);
    io.Float(u"TotalLifeTime", totalLifeTime);
}

} // namespace Vorn
