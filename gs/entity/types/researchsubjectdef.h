#pragma once

#include "gs/entity/entitydef.h"
#include "gs/entity/interfaces/ihuddefinition.h"
#include "gs/research/iresearchsubjectdefinition.h"

namespace Vorn {

// A subject of research.
struct ResearchSubjectDef : EntityDef {
    IHUDDefinition hud;
    IResearchSubjectDefinition subject;

    void Fields(FieldIo& io) override;
};

} // namespace Vorn
