#pragma once

#include "engine/archive/record.h"
#include "gs/entity/support/researchenums.h"
#include "gs/entity/support/sharedenums.h"
#include "gs/entity/support/upgradeenums.h"

namespace Vorn {

// A number of the game that research changes with each level. Some types are linked to the one thing that they change.
struct ResearchFloatModifierTable : Record {
    ResearchFloatModifierType modifierType = ResearchFloatModifierType::Invalid;
    float baseValue = 0.0f;
    float perLevelValue = 0.0f;
    ResearchPlanetType linkedPlanetType = ResearchPlanetType::Invalid;
    PlanetUpgradePathType linkedPlanetUpgradeType = PlanetUpgradePathType::Invalid;
    WeaponClassType linkedWeaponClass = WeaponClassType::Invalid;

    void Fields(FieldIo& io) override;
};

} // namespace Vorn
