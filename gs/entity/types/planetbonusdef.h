#pragma once

#include "engine/datastructures/fixedarray.h"
#include "gs/entity/entitydef.h"
#include "gs/entity/interfaces/ihuddefinition.h"
#include "gs/entity/support/dlcid.h"

namespace Vorn {

// What an artifact or another find changes at a planet. A check requires the range of levels to be in order.
struct PlanetBonusDef : EntityDef {
    std::uint32_t minUpgradeLevelNeeded = 0;
    std::uint32_t maxUpgradeLevelNeeded = 0;
    FixedString<256> nameStringID;
    FixedString<256> descStringID;
    FixedArray<float, 19> floatBonuses;
    FixedArray<std::uint32_t, 4> intBonuses;
    std::int32_t dlcId = kDefaultDlcId;
    IHUDDefinition hud;

    void Fields(FieldIo& io) override;
};

} // namespace Vorn
