#pragma once

#include "engine/archive/record.h"
#include "gs/entity/support/researchprerequisites.h"
#include "gs/entity/support/sharedenums.h"
#include "gs/entity/support/starbaselevelrequirements.h"

namespace Vorn {

// A mesh and what must be reached for an entity to show it. The criteria select which of the two requirements is
// stored; criteria that are neither of these nor "None" fire the check "false", read or written.
struct MeshNameInfo : Record {
    FixedString<256> meshName;
    CriteriaType criteriaType = CriteriaType::Invalid;
    ResearchPrerequisites prerequisites;
    StarBaseLevelRequirements levelRequirements;

    void Fields(FieldIo& io) override;
};

} // namespace Vorn
