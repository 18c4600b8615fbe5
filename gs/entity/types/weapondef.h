#pragma once

#include "gs/entity/entitydef.h"

namespace Vorn {

// A weapon by itself has no content: weapons are told where their owners are.
struct WeaponDef : EntityDef {
    void Fields(FieldIo&) override {}
};

} // namespace Vorn
