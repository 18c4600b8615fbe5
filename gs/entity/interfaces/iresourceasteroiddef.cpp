#include "gs/entity/interfaces/iresourceasteroiddef.h"

namespace Vorn {

void IResourceAsteroidDef::Fields(FieldIo& io) {
    io.Enum(u"resource", resource);
    io.Block(hud);
    io.Value(u"mainViewIcon", mainViewIcon);
    io.Value(u"picture", picture);
    io.BoundedList(u"meshNameCount", meshNames, io.Names(u"meshName", NameKind::Mesh));
    io.String(u"nameStringID", nameStringID, NameKind::StringId);
    io.String(u"descStringID", descStringID, NameKind::StringId);
    io.Float(u"nearPlacementDistOffset", nearPlacementDistOffset);
    io.Float(u"farPlacementDistOffset", farPlacementDistOffset);
    if (io.Reading()) {
        CheckAssert(nearPlacementDistOffset >= 0.0f, "nearPlacementDistOffset >= 0.f");
        CheckAssert(farPlacementDistOffset >= 0.0f, "farPlacementDistOffset >= 0.f");
    }
}

} // namespace Vorn
