#include "gs/render/particle/particlepart.h"

namespace Vorn {

void ParticlePart::NameFields(FieldIo& io) {
    Name storedName = name;
    io.String(u"Name", storedName);
    if (io.Reading()) {
        SetName(storedName.View());
    }
    io.Bool(u"Enabled", enabled);
}

void ParticlePart::TimeFields(FieldIo& io) {
    io.Float(u"StartTime", startTime);
    io.Bool(u"HasInfiniteLifeTime", hasInfiniteLifeTime);
    io.Float(u"TotalLifeTime", totalLifeTime);
}

} // namespace Vorn
