#pragma once

#include "engine/archive/namelist.h"
#include "engine/archive/record.h"
#include "gs/entity/support/entitydefname.h"

namespace Vorn {

// A level that a research subject must have reached.
struct ResearchPrerequisite : Record {
    EntityDefNameOf<EntityType::ResearchSubject> subject;
    std::uint32_t level = 0;

    void Fields(FieldIo& io) override;
};

// What a player must have researched, and the faction that the player must be of, an index in the list of factions.
struct ResearchPrerequisites : Record {
    FixedVector<ResearchPrerequisite, 2> prerequisites;
    std::int32_t requiredFaction = NameList::kNone;
    std::uint32_t requiredCompletedResearchSubjects = 0;

    void Fields(FieldIo& io) override;

    bool HasSubject(const EntityDefName& subject) const;
};

} // namespace Vorn
