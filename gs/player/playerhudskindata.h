#pragma once

#include "engine/archive/record.h"
#include "engine/datastructures/fixedarray.h"
#include "engine/window/brushref.h"

namespace Vorn {

// The look of a player's interface: the icons that a fleet can have, and one brush for each part of the screen.
struct PlayerHUDSkinData : Record {
    BrushRef loadScreenCharacterBrush;
    FixedVector<BrushRef, 10> fleetIcons;
    FixedArray<BrushRef, 187> brushes;

    void Fields(FieldIo& io) override;
};

} // namespace Vorn
