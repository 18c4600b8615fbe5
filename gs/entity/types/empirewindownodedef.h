#pragma once

#include "engine/window/brushref.h"
#include "gs/entity/entitydef.h"

namespace Vorn {

// A node of the empire window.
struct EmpireWindowNodeDef : EntityDef {
    BrushRef hyperspaceNodeIcon;

    void Fields(FieldIo& io) override;
};

} // namespace Vorn
