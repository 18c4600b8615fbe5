#pragma once

#include "gs/entity/entitydef.h"

namespace Vorn {

// A lane between two planets. It has no fields: its file contains the type alone.
struct PlanetConnectionDef : EntityDef {
    void Fields(FieldIo&) override {}
};

} // namespace Vorn
