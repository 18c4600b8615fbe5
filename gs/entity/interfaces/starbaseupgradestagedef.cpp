#include "gs/entity/interfaces/starbaseupgradestagedef.h"

namespace Vorn {

void StarBaseUpgradeStageDef::Fields(FieldIo& io) {
    io.Record(u"price", price);
    io.Float(u"upgradeTime", upgradeTime);
    io.String(u"nameStringID", nameStringID);
    io.String(u"descStringID", descStringID);
    io.Record(u"researchPrerequisites", researchPrerequisites);
    io.Block(hud);
    io.Block(properties);
}

} // namespace Vorn
