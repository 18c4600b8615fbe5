#pragma once

#include "engine/archive/record.h"

namespace Vorn {

// The meshes that a player's ships fall to.
struct PlayerDebrisData : Record {
    using MeshNameList = FixedVector<FixedString<256>, 10>;

    MeshNameList randomMeshNamesLarge;
    MeshNameList randomMeshNamesSmall;

    void Fields(FieldIo& io) override;
};

} // namespace Vorn
