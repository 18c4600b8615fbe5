#include "gs/entity/types/cosmeticdef.h"

namespace Vorn {

void CosmeticDef::Fields(FieldIo& io) {
    CommandFields(io);
    io.Block(titan);
    BodyFields(io);
    io.Block(unitSound);
    io.Block(changeMesh);
    TailFields(io);
}

} // namespace Vorn
