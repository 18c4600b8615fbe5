#pragma once

#include "gs/entity/entitydef.h"

namespace Vorn {

// A trigger has no content: its file tells that it is there.
struct TriggerDef : EntityDef {
    void Fields(FieldIo&) override {}
};

} // namespace Vorn
