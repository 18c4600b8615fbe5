#pragma once

#include "gs/entity/entitydef.h"
#include "gs/entity/interfaces/ihuddefinition.h"
#include "gs/research/iresearchsubjectdefinition.h"

namespace Vorn {

// A subject of research.
class ResearchSubjectDef : public EntityDef {
public:
    void Fields(FieldIo& io) override;

private:
    IHUDDefinition hud;
    IResearchSubjectDefinition subject;
};

} // namespace Vorn
