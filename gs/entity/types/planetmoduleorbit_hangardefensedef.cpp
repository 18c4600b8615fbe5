#include "gs/entity/types/planetmoduleorbit_hangardefensedef.h"

namespace Vorn {

void PlanetModuleOrbit_HangarDefenseDef::Fields(FieldIo& io) {
    PlanetModuleOrbitDef::Fields(io);
    io.Block(squads);
    io.Block(weaponOwner);
    io.Uint(u"baseCommandPoints", baseCommandPoints);
    // After the weapons, unlike in the weapon defence.
    io.Block(attacker);
}

} // namespace Vorn
