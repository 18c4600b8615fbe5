#include "gs/entity/interfaces/ititanupgradedef.h"

namespace Vorn {

void ITitanUpgradeDef::Fields(FieldIo& io) {
    io.BoundedList(u"stageCount", stages, [&](TitanUpgradeStageDef& stage) { io.Record(u"stage", stage); });
    if (io.Reading()) {
        CheckAssert(stages.Size() > 0, "stages.Size() > 0");
    }
}

} // namespace Vorn
