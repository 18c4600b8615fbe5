#include "gs/player/playerdebrisdata.h"

namespace Vorn {

void PlayerDebrisData::Fields(FieldIo& io) {
    // Both lists have the same key for their entries.
    const auto meshName = io.Strings(u"randomMeshName");
    io.BoundedList(u"numRandomMeshNamesLarge", randomMeshNamesLarge, meshName);
    io.BoundedList(u"numRandomMeshNamesSmall", randomMeshNamesSmall, meshName);
}

} // namespace Vorn
