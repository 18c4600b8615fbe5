#pragma once

#include "gs/entity/entitydef.h"
#include "gs/entity/interfaces/ipipclouddef.h"

namespace Vorn {

// A crowd of entities around a planet.
struct PipCloudDef : EntityDef {
    IPipCloudDef pipCloud;

    void Fields(FieldIo& io) override;
};

} // namespace Vorn
