#pragma once

#include "engine/archive/record.h"

namespace Vorn {

// How a ship joins a fleet.
struct IFleetMemberDefinition : Record {
    Bool autoJoinFleetDefault;

    void Fields(FieldIo& io) override;
};

} // namespace Vorn
