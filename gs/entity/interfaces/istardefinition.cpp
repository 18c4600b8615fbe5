#include "gs/entity/interfaces/istardefinition.h"

namespace Vorn {

void IStarDefinition::ColoredSkyboxInfo::Fields(FieldIo& io) {
    io.String(u"meshName", meshName, NameKind::Mesh);
    io.Bool(u"shouldPrefer", shouldPrefer);
}

void IStarDefinition::Fields(FieldIo& io) {
    // Both lists have the same key for their entries.
    const auto skybox = io.Records(u"meshInfo");
    io.Color(u"coronaStartColor", coronaStartColor);
    io.Color(u"coronaEndColor", coronaEndColor);
    io.Float(u"coronaStartColorDistance", coronaStartColorDistance);
    io.Float(u"coronaEndColorDistance", coronaEndColorDistance);
    io.Value(u"farIcon", farIcon);
    io.BoundedList(u"coloredSkyboxMeshInfoCount", coloredSkyboxes, skybox);
    io.BoundedList(u"deepSpaceSkyboxMeshInfoCount", deepSpaceSkyboxes, skybox);
    io.String(u"iconTextureName", iconTextureName);
    // Planets and their bonuses spell this key in another way.
    io.Int(u"dlcID", dlcID);
}

} // namespace Vorn
