#include "gs/entity/types/stardef.h"

namespace Vorn {

void StarDef::Fields(FieldIo& io) {
    io.Block(star);
    io.Block(abilities);
    io.Block(hud);
    io.Block(userInterface);
    io.Block(orbitBody);
    io.Value(u"mainViewIcon", mainViewIcon);
    io.Value(u"picture", picture);
    io.String(u"MeshName", meshName, NameKind::Mesh);
    io.Float(u"MaxMeshVisibilityDistanceToCamera", maxMeshVisibilityDistanceToCamera);
    io.Block(render);
}

} // namespace Vorn
