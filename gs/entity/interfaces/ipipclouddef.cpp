#include "gs/entity/interfaces/ipipclouddef.h"

namespace Vorn {

void IPipCloudDef::Fields(FieldIo& io) {
    io.Enum(u"pipCloudType", pipCloudType);
    io.Value(u"empireWindowPipIcon", empireWindowPipIcon);
    io.Rectangle(u"mainViewIconAreaOffsetFromCenter", mainViewIconAreaOffsetFromCenter);
    io.Value(u"mainViewOverlay", mainViewOverlay);
    io.Value(u"mainViewOverlayUnderCursor", mainViewOverlayUnderCursor);
    io.Uint(u"mainViewIconMaxEntityCount", mainViewIconMaxEntityCount);
}

} // namespace Vorn
