#include "gs/entity/types/fighterdef.h"

namespace Vorn {

void FighterDef::Fields(FieldIo& io) {
    io.Block(attacker);
    io.Block(damage);
    io.Block(hud);
    io.Block(userInterface);
    io.String(u"nameStringID", nameStringID, NameKind::StringId);
    io.String(u"counterDescriptionStringID", counterDescriptionStringID, NameKind::StringId);
    io.Enum(u"statCountType", statCountType);
    io.Float(u"formationOffsetDistance", formationOffsetDistance);
    io.Block(rigidBody);
    io.Block(physics);
    io.Block(weaponOwner);
    io.String(u"meshName", meshName, NameKind::Mesh);
    // Fighters spell this key and that of the engine sound in lower case, unlike all other ships.
    io.Value(u"exhaustParticleSystemName", exhaustParticleSystemName);
    io.Value(u"ExplosionName", explosionName);
    io.String(u"exhaustTrailTextureName", exhaustTrailTextureName);
    io.Float(u"exhaustTrailWidth", exhaustTrailWidth);
    io.Value(u"engineSoundID", engineSoundID);
    io.Float(u"maxHullPoints", maxHullPoints);
    io.Float(u"hullPointRestoreRate", hullPointRestoreRate);
    io.Float(u"armorPoints", armorPoints);
    io.Float(u"maxMitigation", maxMitigation);
    io.Float(u"experiencePointsForDestroying", experiencePointsForDestroying);
    io.Block(render);
}

} // namespace Vorn
