#include "gs/entity/support/targetcentriceffectpointspawninfo.h"

namespace Vorn {

void TargetCentricEffectPointSpawnInfo::Fields(FieldIo& io) {
    io.Enum(u"spawnType", spawnType);
    CheckAssert(spawnType != SpawnType::Invalid, "false");
    if (spawnType == SpawnType::Invalid) {
        return;
    }
    io.Float(u"minRadius", minRadius);
    io.Float(u"maxRadius", maxRadius);
    if (spawnType == SpawnType::RandomFromUp) {
        io.Degrees(u"angleVariance", angleVariance);
    }
}

} // namespace Vorn
