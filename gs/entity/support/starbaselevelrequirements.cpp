#include "gs/entity/support/starbaselevelrequirements.h"

namespace Vorn {

void StarBaseLevelRequirements::StarBaseLevelRequirement::Fields(FieldIo& io) {
    io.Enum(u"upgradePropertyType", upgradePropertyType);
    io.Uint(u"upgradeLevel", upgradeLevel);
}

void StarBaseLevelRequirements::Fields(FieldIo& io) {
    io.BoundedList(u"levelRequirementCount", levelRequirements,
                   [&](StarBaseLevelRequirement& requirement) { io.Record(u"levelRequirement", requirement); });
}

} // namespace Vorn
