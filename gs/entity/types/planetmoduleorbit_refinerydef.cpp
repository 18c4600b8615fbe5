#include "gs/entity/types/planetmoduleorbit_refinerydef.h"

namespace Vorn {

void PlanetModuleOrbit_RefineryDef::Fields(FieldIo& io) {
    PlanetModuleOrbitDef::Fields(io);
    io.Block(refinery);
}

} // namespace Vorn
