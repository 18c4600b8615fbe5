#include "gs/entity/interfaces/ifleetdefinition.h"

namespace Vorn {

void IFleetDefinition::Fields(FieldIo& io) {
    io.Enum(u"defaultCohesionRange", defaultCohesionRange);
}

} // namespace Vorn
