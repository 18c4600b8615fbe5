#pragma once

#include "engine/archive/record.h"

namespace Vorn {

// The meshes of debris that a player's ships break into.
struct PlayerDebrisData : Record {
    using MeshNameList = FixedVector<FixedString<256>, 10>;

    MeshNameList randomMeshNamesLarge;
    MeshNameList randomMeshNamesSmall;

    void Fields(FieldIo& io) override;
};

} // namespace Vorn
