#include "gs/entity/interfaces/istarbasedef.h"

namespace Vorn {

void IStarBaseDef::Fields(FieldIo& io) {
    io.Value(u"mainViewIcon", mainViewIcon);
    io.Float(u"experiencePointsForDestroying", experiencePointsForDestroying);
    io.String(u"nameStringID", nameStringID, NameKind::StringId);
    io.Value(u"picture", picture);
    io.Enum(u"statCountType", statCountType);
    io.Value(u"creationSourceAbility", creationSourceAbility);
    io.Uint(u"maxUpgradeLevelCount", maxUpgradeLevelCount);
    io.BoundedList(u"UpgradeTypeCount", upgradeTypes, io.Values(u"UpgradeType"));
}

} // namespace Vorn
