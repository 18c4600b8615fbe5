#include "engine/render/billboard.h"

#include "engine/core/report.h"

#include <iterator>

namespace Vorn {

namespace {

constexpr BillboardQuad kAnchoredQuads[] = {
    {-0.5f, 0.5f, 0.5f, -0.5f}, {0.0f, 0.5f, 1.0f, -0.5f},  {-1.0f, 0.5f, 0.0f, -0.5f},
    {0.0f, 0.0f, 1.0f, -1.0f},  {-0.5f, 0.0f, 0.5f, -1.0f}, {-1.0f, 0.0f, 0.0f, -1.0f},
    {-1.0f, 1.0f, 0.0f, 0.0f},  {-0.5f, 1.0f, 0.5f, 0.0f},  {0.0f, 1.0f, 1.0f, 0.0f},
};

} // namespace

BillboardQuad QuadOfAnchor(std::uint32_t anchor) {
    const bool isAnchor = anchor < std::size(kAnchoredQuads);
    CheckAssert(isAnchor, "false");
    return isAnchor ? kAnchoredQuads[anchor] : BillboardQuad{};
}

} // namespace Vorn
