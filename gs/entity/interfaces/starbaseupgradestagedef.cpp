#include "gs/entity/interfaces/starbaseupgradestagedef.h"

namespace Vorn {

void StarBaseUpgradeStageDef::Fields(FieldIo& io) {
    io.Record(u"price", price);
    io.Float(u"upgradeTime", upgradeTime);
    io.String(u"nameStringID", nameStringID, NameKind::StringId);
    io.String(u"descStringID", descStringID, NameKind::StringId);
    io.Record(u"researchPrerequisites", researchPrerequisites);
    io.Block(hud);
    io.Block(properties);
}

} // namespace Vorn
