#pragma once

#include "gs/entity/types/planetmoduleorbitdef.h"

namespace Vorn {

// A module that builds ships; nothing of that is stored.
struct PlanetModuleOrbit_ShipFactoryDef : PlanetModuleOrbitDef {};

} // namespace Vorn
