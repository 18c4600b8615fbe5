#pragma once

#include "gs/entity/entitydef.h"

namespace Vorn {

// A trigger has no fields: its file contains the type alone.
struct TriggerDef : EntityDef {
    void Fields(FieldIo&) override {}
};

} // namespace Vorn
