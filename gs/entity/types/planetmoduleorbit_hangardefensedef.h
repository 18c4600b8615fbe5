#pragma once

#include "gs/entity/interfaces/iattackerdefinition.h"
#include "gs/entity/interfaces/isquadcontainerdef.h"
#include "gs/entity/interfaces/iweaponownerdefinition.h"
#include "gs/entity/types/planetmoduleorbitdef.h"

namespace Vorn {

// A module that launches squads.
struct PlanetModuleOrbit_HangarDefenseDef : PlanetModuleOrbitDef {
    ISquadContainerDef squads;
    IWeaponOwnerDefinition weaponOwner;
    std::uint32_t baseCommandPoints = 0;
    IAttackerDefinition attacker;

    void Fields(FieldIo& io) override;
};

} // namespace Vorn
