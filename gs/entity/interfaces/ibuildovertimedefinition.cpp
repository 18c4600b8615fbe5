#include "gs/entity/interfaces/ibuildovertimedefinition.h"

namespace Vorn {

void IBuildOverTimeDefinition::Fields(FieldIo& io) {
    io.Float(u"baseBuildTime", baseBuildTime);
    io.Value(u"buildEffectName", buildEffectName);
}

} // namespace Vorn
