#include "gs/entity/support/bufflevelfloattable.h"

#include <algorithm>

namespace Vorn {

namespace {
constexpr Label kLevelLabels[BuffLevelFloatTable::kLevelCount] = {u"Level:0", u"Level:1", u"Level:2", u"Level:3"};
}

void BuffLevelFloatTable::Fields(FieldIo& io) {
    io.LabelledArray(kLevelLabels, values, &FieldIo::Floats);
}

void LevelFloat(FieldIo& io, Label label, BuffLevelFloatTable& table, bool hasLevels) {
    if (hasLevels) {
        io.Record(label, table);
        return;
    }
    float value = io.Reading() ? 0.0f : table.GetValueAtLevel(0);
    io.Float(label, value);
    if (io.Reading()) {
        std::fill(table.values.begin(), table.values.end(), value);
    }
}

} // namespace Vorn
