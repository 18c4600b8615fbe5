#include "gs/entity/interfaces/iorbitbodydefinition.h"

namespace Vorn {

void IOrbitBodyDefinition::Fields(FieldIo& io) {
    io.Float(u"moveAreaRadius", moveAreaRadius);
    io.Float(u"hyperspaceExitRadius", hyperspaceExitRadius);
    io.Bool(u"isWormhole", isWormhole);
    io.Uint(u"maxStarBaseCountPerPlayer", maxStarBaseCountPerPlayer);
    io.Uint(u"maxSpaceMineCountPerPlayer", maxSpaceMineCountPerPlayer);
}

} // namespace Vorn
