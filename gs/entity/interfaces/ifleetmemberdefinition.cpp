#include "gs/entity/interfaces/ifleetmemberdefinition.h"

namespace Vorn {

void IFleetMemberDefinition::Fields(FieldIo& io) {
    io.Bool(u"autoJoinFleetDefault", autoJoinFleetDefault);
}

} // namespace Vorn
