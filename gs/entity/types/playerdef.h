#pragma once

#include "gs/entity/entitydef.h"
#include "gs/entity/interfaces/iplayerdef.h"

namespace Vorn {

// The definition of a playable race.
class PlayerDef : public EntityDef {
public:
    void Fields(FieldIo& io) override { io.Block(player); }

private:
    IPlayerDef player;
};

} // namespace Vorn
