#pragma once

#include "engine/archive/record.h"
#include "engine/window/brushref.h"

namespace Vorn {

// The icons that show an entity in the interface.
struct IHUDDefinition : Record {
    BrushRef hudIcon;
    BrushRef smallHudIcon;
    BrushRef infoCardIcon;

    void Fields(FieldIo& io) override;
};

} // namespace Vorn
