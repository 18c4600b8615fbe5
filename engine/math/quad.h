#pragma once

namespace Vorn {

// Four floats without a meaning of their own.
struct Quad {
    float x = 0.0f;
    float y = 0.0f;
    float z = 0.0f;
    float w = 0.0f;
};

} // namespace Vorn
