#include "gs/entity/types/planetdef.h"

namespace Vorn {

void PlanetDef::Fields(FieldIo& io) {
    io.Block(planet);
    io.Block(shield);
    io.Block(orbitBody);
    io.Block(render);
    io.Block(abilities);
}

} // namespace Vorn
