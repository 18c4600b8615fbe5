#include "gs/entity/types/planetmoduleorbit_weapondefensedef.h"

namespace Vorn {

void PlanetModuleOrbit_WeaponDefenseDef::Fields(FieldIo& io) {
    PlanetModuleOrbitDef::Fields(io);
    io.Block(attacker);
    io.Block(weaponOwner);
}

} // namespace Vorn
