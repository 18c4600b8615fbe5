#include "engine/archive/archivable.h"

namespace Vorn {

void Archivable::Read(Archive& archive, std::int32_t) {
    Read(archive);
}

} // namespace Vorn
