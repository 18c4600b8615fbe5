#include "gs/entity/types/pipclouddef.h"

namespace Vorn {

void PipCloudDef::Fields(FieldIo& io) {
    io.Block(pipCloud);
}

} // namespace Vorn
