#pragma once

#include "gs/entity/interfaces/iattackerdefinition.h"
#include "gs/entity/interfaces/iweaponownerdefinition.h"
#include "gs/entity/types/planetmoduleorbitdef.h"

namespace Vorn {

// A module that fires.
struct PlanetModuleOrbit_WeaponDefenseDef : PlanetModuleOrbitDef {
    IAttackerDefinition attacker;
    IWeaponOwnerDefinition weaponOwner;

    void Fields(FieldIo& io) override;
};

} // namespace Vorn
