#pragma once

#include "engine/archive/record.h"

namespace Vorn {

// How near the camera may come.
struct IUserInterfaceDef : Record {
    float minZoomDistanceMult = 0.0f;

    void Fields(FieldIo& io) override;
};

} // namespace Vorn
