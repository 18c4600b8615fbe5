#pragma once

#include <cstdint>

namespace Vorn {

// A position in pixels.
struct Point {
    std::int32_t x = 0;
    std::int32_t y = 0;
};

} // namespace Vorn
