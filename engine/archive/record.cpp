#include "engine/archive/record.h"

namespace Vorn {

void Record::Read(Archive& archive) {
    FieldIo io(archive, FieldIo::Direction::Read);
    Fields(io);
}

// Fields cannot be const, since it also reads. While writing it changes no stored field.
void Record::Write(Archive& archive) const {
    FieldIo io(archive, FieldIo::Direction::Write);
    const_cast<Record*>(this)->Fields(io);
}

} // namespace Vorn
