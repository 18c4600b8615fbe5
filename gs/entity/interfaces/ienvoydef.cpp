#include "gs/entity/interfaces/ienvoydef.h"

namespace Vorn {

void IEnvoyDef::Fields(FieldIo& io) {
    io.Float(u"allegianceDecreasePerRoundtrip", allegianceDecreasePerRoundtrip);
}

} // namespace Vorn
