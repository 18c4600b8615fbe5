#pragma once

#include "engine/archive/record.h"
#include "engine/datastructures/fixedarray.h"
#include "gs/entity/support/soundid.h"

namespace Vorn {

// One sound for each event of the game that a player is informed of. In files older than an event its sound is missing
// and stays empty.
struct PlayerGameEventData : Record {
    static constexpr int kGameEventCount = 227;

    FixedArray<SoundID, kGameEventCount> sounds;

    void Fields(FieldIo& io) override;
};

} // namespace Vorn
