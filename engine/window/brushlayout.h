#pragma once

#include "engine/archive/record.h"

namespace Vorn {

// A grid of like brushes on one texture, in pixels.
struct BrushLayout : Record {
    FixedString<256> textureName;
    Point startTopLeft;
    std::uint32_t width = 0;
    std::uint32_t height = 0;
    std::uint32_t rowItemCount = 0;
    std::uint32_t horizontalStride = 0;
    std::uint32_t verticalStride = 0;

    void Fields(FieldIo& io) override;
};

} // namespace Vorn
