#include "gs/entity/interfaces/isquaddefinition.h"

namespace Vorn {

void ISquadDefinition::Fields(FieldIo& io) {
    io.Value(u"fighterEntityDef", fighterEntityDef);
    io.Value(u"fighterIllusionEntityDef", fighterIllusionEntityDef);
    io.Float(u"scuttleTime", scuttleTime);
    io.Float(u"fighterConstructionTime", fighterConstructionTime);
    io.Float(u"decayWithoutOwnerRate", decayWithoutOwnerRate);
    io.Uint(u"baseMaxNumFighters", baseMaxNumFighters);
    io.Enum(u"role", role);
    io.Enum(u"statCountType", statCountType);
    io.Value(u"mainViewIcon", mainViewIcon);
    io.Value(u"picture", picture);
    io.Value(u"launchIcon", launchIcon);
    io.Value(u"dockIcon", dockIcon);
    io.String(u"nameStringID", nameStringID, NameKind::StringId);
    io.String(u"descriptionStringID", descriptionStringID, NameKind::StringId);
    io.Record(u"researchPrerequisites", researchPrerequisites);
}

} // namespace Vorn
