#pragma once

#include "engine/archive/record.h"
#include "engine/datastructures/fixedarray.h"
#include "engine/window/brushref.h"

namespace Vorn {

// What a player is shown at the end of a game. The texts are a status and a phrase for each kind of end, won and lost.
struct PlayerGameOverWindowData : Record {
    BrushRef hasWonPicture;
    BrushRef hasLostPicture;
    BrushRef themeBackdropBrush;
    FixedArray<FixedString<256>, 24> textIds;

    void Fields(FieldIo& io) override;
};

} // namespace Vorn
