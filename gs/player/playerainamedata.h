#pragma once

#include "engine/archive/record.h"

namespace Vorn {

// The names that computer players of a race can have.
struct PlayerAINameData : Record {
    DynamicVector<FixedString<256>> names;

    void Fields(FieldIo& io) override;
};

} // namespace Vorn
