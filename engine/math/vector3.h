#pragma once

namespace Vorn {

struct Vector3 {
    float x = 0.0f;
    float y = 0.0f;
    float z = 0.0f;
};

} // namespace Vorn
