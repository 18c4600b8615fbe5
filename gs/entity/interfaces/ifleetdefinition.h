#pragma once

#include "engine/archive/record.h"
#include "gs/entity/support/sharedenums.h"

namespace Vorn {

// How far the ships of a fleet stay together unless it is ordered otherwise.
struct IFleetDefinition : Record {
    CohesionRange defaultCohesionRange = CohesionRange::Invalid;

    void Fields(FieldIo& io) override;
};

} // namespace Vorn
