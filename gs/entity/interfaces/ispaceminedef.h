#pragma once

#include "engine/archive/record.h"
#include "gs/entity/support/price.h"

namespace Vorn {

// When a mine becomes active, which targets it follows, and the refund for scuttling it.
struct ISpaceMineDef : Record {
    float spawnActivationDelay = 0.0f;
    float targetStartFollowRange = 0.0f;
    float targetMaxFollowRange = 0.0f;
    FixedString<256> nameStringID;
    Price scuttleValue;
    float baseScuttleTime = 0.0f;

    void Fields(FieldIo& io) override;
};

} // namespace Vorn
