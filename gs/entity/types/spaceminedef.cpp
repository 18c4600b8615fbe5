#include "gs/entity/types/spaceminedef.h"

namespace Vorn {

void SpaceMineDef::Fields(FieldIo& io) {
    io.Block(abilities);
    io.Block(damage);
    io.Block(hud);
    io.Value(u"picture", picture);
    io.Value(u"mainViewIcon", mainViewIcon);
    io.Block(userInterface);
    io.String(u"MeshName", meshName, NameKind::Mesh);
    io.Block(spaceMine);
    io.Value(u"ExplosionName", explosionName);
    io.Block(render);
    io.Block(rigidBody);
    io.Block(physics);
    io.Block(unitSound);
    io.Float(u"maxHullPoints", maxHullPoints);
    io.Float(u"hullPointRestoreRate", hullPointRestoreRate);
    io.Float(u"maxShieldPoints", maxShieldPoints);
    io.Float(u"shieldPointRestoreRate", shieldPointRestoreRate);
    io.Float(u"maxShieldMitigation", maxShieldMitigation);
    io.Float(u"armorPoints", armorPoints);
    io.Float(u"experiencePointsForDestroying", experiencePointsForDestroying);
    io.Float(u"baseMaxAntiMatter", baseMaxAntiMatter);
    io.Float(u"baseAntiMatterRestoreRate", baseAntiMatterRestoreRate);
}

} // namespace Vorn
