#pragma once

#include "gs/entity/entitydef.h"
#include "gs/entity/interfaces/imissiondefinition.h"

namespace Vorn {

// A mission of an artificial player. The kinds of missions have one content and differ in their types alone.
struct MissionDef : EntityDef {
    IMissionDefinition mission;

    void Fields(FieldIo& io) override { io.Block(mission); }
};

class Mission_AttackPlanetDef : public MissionDef {};
class Mission_CaptureResourcesDef : public MissionDef {};
class Mission_ColonizeDef : public MissionDef {};
class Mission_BuildStarBaseDef : public MissionDef {};
class Mission_BuildMinesDef : public MissionDef {};
class Mission_ExploreDef : public MissionDef {};
class Mission_RaidDef : public MissionDef {};
class Mission_FosterRelationshipsDef : public MissionDef {};
class Mission_DefendFlagshipDef : public MissionDef {};
class Mission_CaptureMinorFactionDef : public MissionDef {};

} // namespace Vorn
