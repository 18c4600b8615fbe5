#include "gs/entity/interfaces/irenderdefinition.h"

namespace Vorn {

void IRenderDefinition::Fields(FieldIo& io) {
    io.Float(u"minShadow", minShadow);
    io.Float(u"maxShadow", maxShadow);
}

} // namespace Vorn
