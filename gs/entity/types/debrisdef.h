#pragma once

#include "gs/entity/entitydef.h"
#include "gs/entity/interfaces/idebrisdef.h"
#include "gs/entity/interfaces/irenderdefinition.h"

namespace Vorn {

// A piece of what is left of a destroyed entity.
struct DebrisDef : EntityDef {
    IDebrisDef debris;
    IRenderDefinition render;

    void Fields(FieldIo& io) override;
};

} // namespace Vorn
