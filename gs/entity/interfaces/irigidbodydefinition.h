#pragma once

#include "engine/archive/record.h"

namespace Vorn {

// The mass of an entity. A check requires more than 0.
struct IRigidBodyDefinition : Record {
    float mass = 0.0f;

    void Fields(FieldIo& io) override;
};

} // namespace Vorn
