#pragma once

#include "engine/archive/record.h"

namespace Vorn {

// The place of a ship in a formation.
struct IFormationMemberDefinition : Record {
    std::uint32_t formationRank = 0;

    void Fields(FieldIo& io) override;
};

} // namespace Vorn
