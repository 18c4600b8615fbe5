#pragma once

#include "gs/entity/interfaces/ihuddefinition.h"
#include "gs/entity/support/price.h"
#include "gs/entity/support/researchprerequisites.h"
#include "gs/entity/support/upgradeenums.h"
#include "gs/entity/support/upgradeproperties.h"

namespace Vorn {

// A stage of a star base's upgrade.
struct StarBaseUpgradeStageDef : Record {
    Price price;
    float upgradeTime = 0.0f;
    FixedString<256> nameStringID;
    FixedString<256> descStringID;
    ResearchPrerequisites researchPrerequisites;
    IHUDDefinition hud;
    UpgradeProperties<StarBaseUpgradePropertyType, StarBaseUpgradeBoolPropertyType> properties;

    void Fields(FieldIo& io) override;
};

} // namespace Vorn
