#include "gs/entity/interfaces/ispaceminedef.h"

namespace Vorn {

void ISpaceMineDef::Fields(FieldIo& io) {
    io.Float(u"spawnActivationDelay", spawnActivationDelay);
    io.Float(u"targetStartFollowRange", targetStartFollowRange);
    io.Float(u"targetMaxFollowRange", targetMaxFollowRange);
    io.String(u"nameStringID", nameStringID, NameKind::StringId);
    io.Record(u"scuttleValue", scuttleValue);
    io.Float(u"baseScuttleTime", baseScuttleTime);
}

} // namespace Vorn
