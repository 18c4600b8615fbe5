#pragma once

#include "gs/entity/interfaces/irefinerydef.h"
#include "gs/entity/types/planetmoduleorbitdef.h"

namespace Vorn {

// A module that sends out ships for resources.
struct PlanetModuleOrbit_RefineryDef : PlanetModuleOrbitDef {
    IRefineryDef refinery;

    void Fields(FieldIo& io) override;
};

} // namespace Vorn
