#pragma once

#include "engine/archive/record.h"

namespace Vorn {

// How a piece of debris drifts and how long it lasts. Speeds are stored as they are.
struct IDebrisDef : Record {
    float averageLifetime = 0.0f;
    float lifetimeVariancePerc = 0.0f;
    float minLinearSpeed = 0.0f;
    float maxLinearSpeed = 0.0f;
    float minAngularSpeed = 0.0f;
    float maxAngularSpeed = 0.0f;
    float dragRate = 0.0f;

    void Fields(FieldIo& io) override;
};

} // namespace Vorn
