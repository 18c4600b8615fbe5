#pragma once

#include "gs/entity/entitydef.h"

namespace Vorn {

// A formation has no content: its shape is not in its file.
struct FormationDef : EntityDef {
    void Fields(FieldIo&) override {}
};

} // namespace Vorn
