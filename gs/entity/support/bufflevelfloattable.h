#pragma once

#include "engine/archive/record.h"
#include "engine/datastructures/fixedarray.h"

namespace Vorn {

// A value for each level that a buff or an ability can have.
struct BuffLevelFloatTable : Record {
    static constexpr int kLevelCount = 4;

    FixedArray<float, kLevelCount> values;

    void Fields(FieldIo& io) override;

    float GetValueAtLevel(int level) const { return values[level]; }
};

} // namespace Vorn
