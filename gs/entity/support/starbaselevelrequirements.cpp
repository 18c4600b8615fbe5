#include "gs/entity/support/starbaselevelrequirements.h"

namespace Vorn {

void StarBaseLevelRequirements::StarBaseLevelRequirement::Fields(FieldIo& io) {
    io.Enum(u"upgradePropertyType", upgradePropertyType);
    io.Uint(u"upgradeLevel", upgradeLevel);
}

void StarBaseLevelRequirements::Fields(FieldIo& io) {
    io.BoundedList(u"levelRequirementCount", levelRequirements, io.Records(u"levelRequirement"));
}

} // namespace Vorn
