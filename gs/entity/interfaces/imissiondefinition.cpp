#include "gs/entity/interfaces/imissiondefinition.h"

namespace Vorn {

void IMissionDefinition::Fields(FieldIo& io) {
    io.Enum(u"missionType", missionType);
}

} // namespace Vorn
