#include "gs/entity/types/starbaseupgradedef.h"

namespace Vorn {

void StarBaseUpgradeDef::Fields(FieldIo& io) {
    io.Block(upgrade);
}

} // namespace Vorn
