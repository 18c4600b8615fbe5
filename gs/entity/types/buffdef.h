#pragma once

#include "gs/entity/entitydef.h"
#include "gs/entity/interfaces/ibuffdef.h"

namespace Vorn {

// A buff: what abilities, weapons and research do to an entity.
class BuffDef : public EntityDef {
public:
    void Fields(FieldIo& io) override { io.Block(buff); }

private:
    IBuffDef buff;
};

} // namespace Vorn
