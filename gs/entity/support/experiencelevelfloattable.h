#pragma once

#include "engine/archive/record.h"

namespace Vorn {

// A value that grows evenly with the level of experience.
struct ExperienceLevelFloatTable : Record {
    float startValue = 0.0f;
    float valueIncreasePerLevel = 0.0f;

    void Fields(FieldIo& io) override;
};

} // namespace Vorn
