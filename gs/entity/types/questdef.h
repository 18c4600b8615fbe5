#pragma once

#include "gs/entity/entitydef.h"
#include "gs/entity/interfaces/iquestdefinition.h"

namespace Vorn {

// A quest of a minor power.
struct QuestDef : EntityDef {
    IQuestDefinition quest;

    void Fields(FieldIo& io) override { io.Block(quest); }
};

} // namespace Vorn
