#include "gs/entity/types/researchsubjectdef.h"

namespace Vorn {

void ResearchSubjectDef::Fields(FieldIo& io) {
    io.Block(hud);
    io.Block(subject);
}

} // namespace Vorn
