#include "gs/entity/types/squaddef.h"

namespace Vorn {

void SquadDef::Fields(FieldIo& io) {
    io.Block(attacker);
    io.Block(hud);
    io.Block(squad);
    io.Block(unitSound);
    io.Block(render);
    io.Block(abilities);
}

} // namespace Vorn
