#pragma once

#include "engine/archive/record.h"

namespace Vorn {

// How a ship moves. Angular members are in radians here and in degrees in every file.
struct IShipPhysicsDefinition : Record {
    float maxSpeedLinear = 0.0f;
    float maxAccelerationLinear = 0.0f;
    float maxAccelerationStrafe = 0.0f;
    float maxDecelerationLinear = 0.0f;
    float maxAccelerationAngular = 0.0f;
    float maxDecelerationAngular = 0.0f;
    float maxRollRate = 0.0f;
    float maxRollAngle = 0.0f;

    void Fields(FieldIo& io) override;
};

} // namespace Vorn
