#pragma once

#include "engine/archive/record.h"

namespace Vorn {

// A body that ships orbit. A radius of -1 means a default.
struct IOrbitBodyDefinition : Record {
    float moveAreaRadius = -1.0f;
    float hyperspaceExitRadius = -1.0f;
    Bool isWormhole;
    std::uint32_t maxStarBaseCountPerPlayer = 0;
    std::uint32_t maxSpaceMineCountPerPlayer = 0;

    void Fields(FieldIo& io) override;
};

} // namespace Vorn
