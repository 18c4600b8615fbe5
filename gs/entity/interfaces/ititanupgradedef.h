#pragma once

#include "gs/entity/interfaces/titanupgradestagedef.h"

namespace Vorn {

// An upgrade of a titan in at most 10 stages. A check requires at least one.
struct ITitanUpgradeDef : Record {
    FixedVector<TitanUpgradeStageDef, 10> stages;

    void Fields(FieldIo& io) override;
};

} // namespace Vorn
