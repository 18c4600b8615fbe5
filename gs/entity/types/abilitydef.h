#pragma once

#include "gs/entity/entitydef.h"
#include "gs/entity/interfaces/iabilitydef.h"
#include "gs/entity/interfaces/ihuddefinition.h"

namespace Vorn {

// Something that a ship or a structure can do beyond shooting.
struct AbilityDef : EntityDef {
    IAbilityDef ability;
    IHUDDefinition hud;

    void Fields(FieldIo& io) override {
        io.Block(ability);
        io.Block(hud);
    }
};

} // namespace Vorn
