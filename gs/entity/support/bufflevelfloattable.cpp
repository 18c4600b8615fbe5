#include "gs/entity/support/bufflevelfloattable.h"

namespace Vorn {

namespace {
constexpr Label kLevelLabels[BuffLevelFloatTable::kLevelCount] = {u"Level:0", u"Level:1", u"Level:2", u"Level:3"};
}

void BuffLevelFloatTable::Fields(FieldIo& io) {
    for (int i = 0; i < kLevelCount; ++i) {
        io.Float(kLevelLabels[i], values[i]);
    }
}

} // namespace Vorn
