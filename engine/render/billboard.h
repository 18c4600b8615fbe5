#pragma once

#include <cstdint>

namespace Vorn {

// The edges of a square of size 1 that faces the camera, relative to the point that it is anchored at; up is positive.
struct BillboardQuad {
    float left;
    float top;
    float right;
    float bottom;
};

// The square of an anchor, which is the position of its point in the square: centre, left, right, top left, top, top
// right, bottom right, bottom, bottom left, from 0. Any other number fires the check "false" and gives zeros.
BillboardQuad QuadOfAnchor(std::uint32_t anchor);

} // namespace Vorn
