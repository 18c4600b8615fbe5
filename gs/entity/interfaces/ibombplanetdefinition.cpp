#include "gs/entity/interfaces/ibombplanetdefinition.h"

namespace Vorn {

void IBombPlanetDefinition::Fields(FieldIo& io) {
    io.Bool(u"canBomb", canBomb);
    if (!canBomb) {
        return;
    }
    io.Bool(u"hasBombingLevels", hasBombingLevels);
    LevelFloat(io, u"baseDamage", baseDamage, hasBombingLevels);
    LevelFloat(io, u"basePopulationKilled", basePopulationKilled, hasBombingLevels);
    io.Float(u"bombingFreqTime", bombingFreqTime);
    io.Float(u"baseRange", baseRange);
    io.Float(u"bombTransitTime", bombTransitTime);
    io.Uint(u"bombEffectCount", bombEffectCount);
    io.Float(u"bombEffectAngleVariance", bombEffectAngleVariance);
    io.Record(u"bombEffectsDef", bombEffectsDef);
}

} // namespace Vorn
