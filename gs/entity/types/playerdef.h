#pragma once

#include "gs/entity/entitydef.h"
#include "gs/entity/interfaces/iplayerdef.h"

namespace Vorn {

// The definition of a playable race.
struct PlayerDef : EntityDef {
    IPlayerDef player;

    void Fields(FieldIo& io) override { io.Block(player); }
};

} // namespace Vorn
