#include "gs/player/playerdebrisdata.h"

namespace Vorn {

void PlayerDebrisData::Fields(FieldIo& io) {
    // Both lists have the same key for their entries.
    const auto meshName = io.Names(u"randomMeshName", NameKind::Mesh);
    io.BoundedList(u"numRandomMeshNamesLarge", randomMeshNamesLarge, meshName);
    io.BoundedList(u"numRandomMeshNamesSmall", randomMeshNamesSmall, meshName);
}

} // namespace Vorn
