#include "gs/research/researchprerequisites.h"

namespace Vorn {

void ResearchPrerequisite::Fields(FieldIo& io) {
    io.Value(u"Subject", subject);
    io.Uint(u"Level", level);
}

void ResearchPrerequisites::Fields(FieldIo& io) {
    io.BoundedList(u"NumResearchPrerequisites", prerequisites,
                   [&](ResearchPrerequisite& prerequisite) { io.Record(u"ResearchPrerequisite", prerequisite); });
    GetPlayerSystem().factions.Transfer(io, u"RequiredFactionNameID", requiredFaction);
    io.Uint(u"RequiredCompletedResearchSubjects", requiredCompletedResearchSubjects);
}

} // namespace Vorn
