#pragma once

#include "gs/entity/entitydef.h"

namespace Vorn {

// A formation has no fields: its shape is not in its file.
struct FormationDef : EntityDef {
    void Fields(FieldIo&) override {}
};

} // namespace Vorn
