#include "gs/entity/interfaces/istarbaseupgradedef.h"

namespace Vorn {

void IStarBaseUpgradeDef::Fields(FieldIo& io) {
    io.BoundedList(u"stageCount", stages, io.Records(u"stage"));
    io.Float(u"xpModifier", xpModifier);
    if (io.Reading()) {
        CheckAssert(stages.Size() > 0, "stages.Size() > 0");
    }
}

} // namespace Vorn
