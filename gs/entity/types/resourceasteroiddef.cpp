#include "gs/entity/types/resourceasteroiddef.h"

namespace Vorn {

void ResourceAsteroidDef::Fields(FieldIo& io) {
    io.Block(resourceAsteroid);
    io.Block(render);
    io.Block(userInterface);
}

} // namespace Vorn
