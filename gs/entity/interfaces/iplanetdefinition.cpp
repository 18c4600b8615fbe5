#include "gs/entity/interfaces/iplanetdefinition.h"

namespace Vorn {

void IPlanetDefinition::MeshInfo::Fields(FieldIo& io) {
    io.String(u"typeNameStringID", typeNameStringID, NameKind::StringId);
    io.Value(u"asteroidTemplate", asteroidTemplate);
    io.Value(u"dustCloudTemplate", dustCloudTemplate);
    io.String(u"meshName", meshName, NameKind::Mesh);
    io.Color(u"cloudColor", cloudColor);
    io.Float(u"nullMeshRadius", nullMeshRadius);
    io.Value(u"nullMeshParticleEffect", nullMeshParticleEffect);
    io.Value(u"hudIcon", hudIcon);
    io.Value(u"smallHudIcon", smallHudIcon);
    io.Value(u"infoCardIcon", infoCardIcon);
    io.Value(u"mainViewIcon", mainViewIcon);
    io.Value(u"undetectedMainViewIcon", undetectedMainViewIcon);
    io.Value(u"picture", picture);
    io.Bool(u"shouldPrefer", shouldPrefer);
}

void IPlanetDefinition::SkyboxScalars::Fields(FieldIo& io) {
    io.Float(u"diffuseScalar", diffuseScalar);
    io.Float(u"ambientScalar", ambientScalar);
}

void IPlanetDefinition::Fields(FieldIo& io) {
    // Both lists have the same key for their entries.
    const auto bonus = io.Values(u"bonus");
    io.BoundedList(u"meshInfoCount", meshInfo, io.Records(u"meshInfo"));
    io.Float(u"minZoomDistanceMult", minZoomDistanceMult);
    io.Color(u"glowColor", glowColor);
    io.Color(u"ringColor", ringColor);
    io.String(u"cloudLayerTextureName", cloudLayerTextureName);
    io.Record(u"planetResourceSetupInfo", planetResourceSetupInfo);
    io.Bool(u"isAsteroid", isAsteroid);
    io.Float(u"healthRegenRate", healthRegenRate);
    io.Record(u"planetUpgradeDef", planetUpgradeDef);
    io.Float(u"ringsChance", ringsChance);
    io.Bool(u"isColonizable", isColonizable);
    io.Enum(u"planetTypeForResearch", planetTypeForResearch);
    io.BoundedList(u"skyboxScalarsCount", skyboxScalars, io.Records(u"skyboxScalars"));
    io.ReservedList(u"requiredPlanetBonusesCount", requiredPlanetBonuses, bonus);
    io.ReservedList(u"possibleRandomPlanetBonusesCount", possibleRandomPlanetBonuses, bonus);
    io.Value(u"ambienceSoundID", ambienceSoundID);
    io.Bool(u"renderAsVolcanic", renderAsVolcanic);
    io.Record(u"planetRuinDef", planetRuinDef);
    io.Int(u"dlcId", dlcId);
    if (io.Reading()) {
        CheckAssert(meshInfo.Size() > 0, "meshInfo.Size() > 0");
    }
}

} // namespace Vorn
