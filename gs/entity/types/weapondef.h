#pragma once

#include "gs/entity/entitydef.h"

namespace Vorn {

// A weapon has no fields of its own: weapons are part of their owners.
struct WeaponDef : EntityDef {
    void Fields(FieldIo&) override {}
};

} // namespace Vorn
