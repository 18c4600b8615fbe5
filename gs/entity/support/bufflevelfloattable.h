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

// A table that a file holds as a record if there are levels, and as the one number of all levels if there are none. The
// number is read as 0 if it is missing.
void LevelFloat(FieldIo& io, Label label, BuffLevelFloatTable& table, bool hasLevels);

} // namespace Vorn
