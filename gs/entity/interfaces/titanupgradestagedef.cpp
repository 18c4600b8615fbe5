#include "gs/entity/interfaces/titanupgradestagedef.h"

namespace Vorn {

void TitanUpgradeStageDef::Fields(FieldIo& io) {
    io.String(u"nameStringID", nameStringID);
    io.String(u"descStringID", descStringID);
    io.Record(u"researchPrerequisites", researchPrerequisites);
    io.Uint(u"levelRequirement", levelRequirement);
    io.Block(hud);
    io.Block(properties);
}

} // namespace Vorn
