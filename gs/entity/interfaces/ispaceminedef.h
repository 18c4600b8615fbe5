#pragma once

#include "engine/archive/record.h"
#include "gs/entity/support/price.h"

namespace Vorn {

// When a mine wakes, whom it follows, and what scuttling it gives back.
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
