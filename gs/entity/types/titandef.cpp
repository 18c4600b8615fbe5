#include "gs/entity/types/titandef.h"

namespace Vorn {

void TitanDef::Fields(FieldIo& io) {
    CommandFields(io);
    io.Block(bombPlanet);
    io.Block(titan);
    BodyFields(io);
    io.Block(squads);
    io.Block(unitSound);
    io.Block(changeMesh);
    TailFields(io);
}

} // namespace Vorn
