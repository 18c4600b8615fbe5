#include "engine/archive/record.h"

namespace Vorn {

void Record::Read(Archive& archive) {
    FieldIo io(archive, FieldIo::Direction::Read);
    Fields(io);
}

// The one list cannot be const for reading's sake; run for writing it changes no stored field.
void Record::Write(Archive& archive) const {
    FieldIo io(archive, FieldIo::Direction::Write);
    const_cast<Record*>(this)->Fields(io);
}

} // namespace Vorn
