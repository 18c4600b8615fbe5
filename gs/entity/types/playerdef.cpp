#include "gs/entity/types/playerdef.h"

namespace Vorn {

void PlayerDef::Fields(FieldIo& io) {
    io.Block(player);
}

} // namespace Vorn
