#pragma once

#include "engine/archive/record.h"

namespace Vorn {

// What a ship does as an envoy.
struct IEnvoyDef : Record {
    float allegianceDecreasePerRoundtrip = 0.0f;

    void Fields(FieldIo& io) override;
};

} // namespace Vorn
