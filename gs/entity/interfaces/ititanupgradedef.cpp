#include "gs/entity/interfaces/ititanupgradedef.h"

namespace Vorn {

void ITitanUpgradeDef::Fields(FieldIo& io) {
    io.BoundedList(u"stageCount", stages, io.Records(u"stage"));
    if (io.Reading()) {
        CheckAssert(stages.Size() > 0, "stages.Size() > 0");
    }
}

} // namespace Vorn
