#pragma once

#include "gs/entity/entitydef.h"

namespace Vorn {

// A weapon by itself has no content: weapons are part of their owners.
struct WeaponDef : EntityDef {
    void Fields(FieldIo&) override {}
};

} // namespace Vorn
