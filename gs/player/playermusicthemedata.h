#pragma once

#include "engine/archive/record.h"
#include "gs/entity/support/soundid.h"

namespace Vorn {

// The music of a player by occasion.
struct PlayerMusicThemeData : Record {
    DynamicVector<SoundID> startupThemes;
    DynamicVector<SoundID> neutralThemes;
    DynamicVector<SoundID> scareThemes;
    DynamicVector<SoundID> announcements;

    void Fields(FieldIo& io) override;
};

} // namespace Vorn
