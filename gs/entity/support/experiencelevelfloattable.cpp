#include "gs/entity/support/experiencelevelfloattable.h"

namespace Vorn {

void ExperienceLevelFloatTable::Fields(FieldIo& io) {
    io.Float(u"StartValue", startValue);
    io.Float(u"ValueIncreasePerLevel", valueIncreasePerLevel);
}

} // namespace Vorn
