#include "gs/player/playershielddata.h"

namespace Vorn {

void PlayerShieldData::Fields(FieldIo& io) {
    io.Float(u"shieldAbsorbGrowthPerDamage", shieldAbsorbGrowthPerDamage);
    io.Float(u"shieldAbsorbDecayRate", shieldAbsorbDecayRate);
    io.Float(u"shieldAbsorbBaseMin", shieldAbsorbBaseMin);
    io.Color(u"shieldColor", shieldColor);
}

} // namespace Vorn
