#include "gs/entity/types/capitalshipdef.h"

namespace Vorn {

void CapitalShipDef::Fields(FieldIo& io) {
    CommandFields(io);
    io.Block(bombPlanet);
    io.Block(capitalShip);
    BodyFields(io);
    io.Block(squads);
    io.Block(unitSound);
    io.Block(changeMesh);
    TailFields(io);
}

} // namespace Vorn
