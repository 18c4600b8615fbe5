#include "gs/entity/interfaces/titanupgradestagedef.h"

namespace Vorn {

void TitanUpgradeStageDef::Fields(FieldIo& io) {
    io.String(u"nameStringID", nameStringID, NameKind::StringId);
    io.String(u"descStringID", descStringID, NameKind::StringId);
    io.Record(u"researchPrerequisites", researchPrerequisites);
    io.Uint(u"levelRequirement", levelRequirement);
    io.Block(hud);
    io.Block(properties);
}

} // namespace Vorn
