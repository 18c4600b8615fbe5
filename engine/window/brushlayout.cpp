#include "engine/window/brushlayout.h"

namespace Vorn {

void BrushLayout::Fields(FieldIo& io) {
    io.String(u"textureName", textureName);
    io.Point(u"startTopLeft", startTopLeft);
    io.Uint(u"width", width);
    io.Uint(u"height", height);
    io.Uint(u"rowItemCount", rowItemCount);
    io.Uint(u"horizontalStride", horizontalStride);
    io.Uint(u"verticalStride", verticalStride);
}

} // namespace Vorn
