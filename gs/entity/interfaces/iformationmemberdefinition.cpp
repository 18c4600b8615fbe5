#include "gs/entity/interfaces/iformationmemberdefinition.h"

namespace Vorn {

void IFormationMemberDefinition::Fields(FieldIo& io) {
    io.Uint(u"formationRank", formationRank);
}

} // namespace Vorn
