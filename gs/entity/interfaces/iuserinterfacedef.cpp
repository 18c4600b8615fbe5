#include "gs/entity/interfaces/iuserinterfacedef.h"

namespace Vorn {

void IUserInterfaceDef::Fields(FieldIo& io) {
    io.Float(u"minZoomDistanceMult", minZoomDistanceMult);
}

} // namespace Vorn
