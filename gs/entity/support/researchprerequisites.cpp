#include "gs/entity/support/researchprerequisites.h"

#include <algorithm>

namespace Vorn {

void ResearchPrerequisite::Fields(FieldIo& io) {
    io.Value(u"Subject", subject);
    io.Uint(u"Level", level);
}

void ResearchPrerequisites::Fields(FieldIo& io) {
    io.BoundedList(u"NumResearchPrerequisites", prerequisites, io.Records(u"ResearchPrerequisite"));
    io.Context().factions->Transfer(io, u"RequiredFactionNameID", requiredFaction);
    io.Uint(u"RequiredCompletedResearchSubjects", requiredCompletedResearchSubjects);
}

bool ResearchPrerequisites::HasSubject(const EntityDefName& subject) const {
    return std::ranges::any_of(prerequisites, [&](const ResearchPrerequisite& prerequisite) {
        return prerequisite.subject.GetText().View() == subject.GetText().View();
    });
}

} // namespace Vorn
