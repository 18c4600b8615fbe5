#pragma once

#include "engine/archive/record.h"

namespace Vorn {

// The shield around an entity.
struct IShieldDefinition : Record {
    FixedString<256> shieldMeshName;
    Bool renderShield;

    void Fields(FieldIo& io) override;
};

} // namespace Vorn
