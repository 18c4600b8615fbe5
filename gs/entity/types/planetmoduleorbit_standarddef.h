#pragma once

#include "gs/entity/types/planetmoduleorbitdef.h"

namespace Vorn {

// A module with nothing of its own.
struct PlanetModuleOrbit_StandardDef : PlanetModuleOrbitDef {};

} // namespace Vorn
