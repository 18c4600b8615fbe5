#include "gs/entity/types/debrisdef.h"

namespace Vorn {

void DebrisDef::Fields(FieldIo& io) {
    io.Block(debris);
    io.Block(render);
}

} // namespace Vorn
