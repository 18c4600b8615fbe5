#pragma once

#include "engine/archive/record.h"

namespace Vorn {

// What something costs.
struct Price : Record {
    float credits = 0.0f;
    float metal = 0.0f;
    float crystal = 0.0f;

    void Fields(FieldIo& io) override;
};

} // namespace Vorn
