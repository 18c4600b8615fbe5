#pragma once

#include "engine/archive/record.h"

namespace Vorn {

// The smallest distance of the camera.
struct IUserInterfaceDef : Record {
    float minZoomDistanceMult = 0.0f;

    void Fields(FieldIo& io) override;
};

} // namespace Vorn
