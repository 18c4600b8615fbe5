#pragma once

#include "gs/entity/support/titanupgradestagedef.h"

namespace Vorn {

// An upgrade of a titan. A check wants at least one stage.
struct ITitanUpgradeDef : Record {
    FixedVector<TitanUpgradeStageDef, 10> stages;

    void Fields(FieldIo& io) override;
};

} // namespace Vorn
