#pragma once

#include <cstdint>

namespace Vorn {

// An extent in pixels; stored like a Point.
struct Size {
    std::int32_t width = 0;
    std::int32_t height = 0;
};

} // namespace Vorn
