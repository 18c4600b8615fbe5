#pragma once

#include "engine/archive/record.h"
#include "gs/entity/support/entitydefname.h"
#include "gs/entity/support/researchenums.h"

namespace Vorn {

// Something that research allows or causes. Some types have a field for details. The faction is kept as text here.
struct ResearchBoolModifierTable : Record {
    ResearchBoolModifierType modifierType = ResearchBoolModifierType::Invalid;
    ResearchPlanetType linkedPlanetType = ResearchPlanetType::Invalid;
    AllianceType allianceType = AllianceType::Invalid;
    EntityDefName pactUnlockEntityDefName;
    FixedString<256> factionNameID;
    EntityDefNameOf<EntityType::ResearchSubject> researchUnlockDefName;
    EntityDefNameOf<EntityType::Buff> buffToApply;

    void Fields(FieldIo& io) override;

    bool IsVictory() const;
};

} // namespace Vorn
