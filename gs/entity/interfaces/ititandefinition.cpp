#include "gs/entity/interfaces/ititandefinition.h"

namespace Vorn {

void ITitanDefinition::Fields(FieldIo& io) {
    ILargeShipDefinition::Fields(io);
    io.Enum(u"statCountType", statCountType);
    io.BoundedList(u"UpgradeTypeCount", upgradeTypes, io.Values(u"UpgradeType"));
}

} // namespace Vorn
