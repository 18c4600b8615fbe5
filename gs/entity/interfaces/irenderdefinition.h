#pragma once

#include "engine/archive/record.h"

namespace Vorn {

// How an entity is shaded.
struct IRenderDefinition : Record {
    float minShadow = 0.0f;
    float maxShadow = 0.0f;

    void Fields(FieldIo& io) override;
};

} // namespace Vorn
