#include "gs/entity/interfaces/icapitalshipdefinition.h"

namespace Vorn {

void ICapitalShipDefinition::Fields(FieldIo& io) {
    ILargeShipDefinition::Fields(io);
    io.Enum(u"roleType", roleType);
    io.Enum(u"statCountType", statCountType);
}

} // namespace Vorn
