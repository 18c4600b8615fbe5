#pragma once

#include "gs/entity/interfaces/ihuddefinition.h"
#include "gs/entity/support/researchprerequisites.h"
#include "gs/entity/support/upgradeenums.h"
#include "gs/entity/support/upgradeproperties.h"

namespace Vorn {

// A stage of a titan's upgrade, bought with the titan's levels.
struct TitanUpgradeStageDef : Record {
    FixedString<256> nameStringID;
    FixedString<256> descStringID;
    ResearchPrerequisites researchPrerequisites;
    std::uint32_t levelRequirement = 0;
    IHUDDefinition hud;
    UpgradeProperties<TitanUpgradePropertyType, TitanUpgradeBoolPropertyType> properties;

    void Fields(FieldIo& io) override;
};

} // namespace Vorn
