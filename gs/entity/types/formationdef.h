#pragma once

#include "gs/entity/entitydef.h"

namespace Vorn {

// A formation has no content: its shape is not told in files.
struct FormationDef : EntityDef {
    void Fields(FieldIo&) override {}
};

} // namespace Vorn
