#pragma once

#include "gs/entity/interfaces/ilargeshipdefinition.h"
#include "gs/entity/support/entitydefname.h"

namespace Vorn {

// What makes a large ship a titan: the upgrades that it can have, of which a file may hold 8.
struct ITitanDefinition : ILargeShipDefinition {
    PlayerEntityCountType statCountType = PlayerEntityCountType::Invalid;
    FixedVector<EntityDefNameOf<EntityType::TitanUpgrade>, 8> upgradeTypes;

    void Fields(FieldIo& io) override;
};

} // namespace Vorn
