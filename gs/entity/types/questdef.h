#pragma once

#include "gs/entity/entitydef.h"
#include "gs/entity/interfaces/iquestdefinition.h"

namespace Vorn {

// A quest of a minor power.
class QuestDef : public EntityDef {
public:
    void Fields(FieldIo& io) override { io.Block(quest); }

private:
    IQuestDefinition quest;
};

} // namespace Vorn
