#include "gs/entity/types/titanupgradedef.h"

namespace Vorn {

void TitanUpgradeDef::Fields(FieldIo& io) {
    io.Block(upgrade);
}

} // namespace Vorn
