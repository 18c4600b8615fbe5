#pragma once

#include "engine/archive/record.h"
#include "engine/datastructures/fixedarray.h"
#include "gs/entity/support/soundid.h"

namespace Vorn {

// What a player hears of, one sound for each event of the game. Files older than some events lack their sounds, which
// stay empty.
struct PlayerGameEventData : Record {
    static constexpr int kGameEventCount = 227;

    FixedArray<SoundID, kGameEventCount> sounds;

    void Fields(FieldIo& io) override;
};

} // namespace Vorn
