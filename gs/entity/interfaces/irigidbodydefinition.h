#pragma once

#include "engine/archive/record.h"

namespace Vorn {

// The mass of an entity, which a check wants above 0.
struct IRigidBodyDefinition : Record {
    float mass = 0.0f;

    void Fields(FieldIo& io) override;
};

} // namespace Vorn
