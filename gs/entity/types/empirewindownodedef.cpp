#include "gs/entity/types/empirewindownodedef.h"

namespace Vorn {

void EmpireWindowNodeDef::Fields(FieldIo& io) {
    io.Value(u"hyperspaceNodeIcon", hyperspaceNodeIcon);
}

} // namespace Vorn
