#pragma once

#include "gs/entity/entitydef.h"
#include "gs/entity/interfaces/ibuffdef.h"

namespace Vorn {

// A buff: what abilities, weapons and research do to an entity.
struct BuffDef : EntityDef {
    IBuffDef buff;

    void Fields(FieldIo& io) override { io.Block(buff); }
};

} // namespace Vorn
