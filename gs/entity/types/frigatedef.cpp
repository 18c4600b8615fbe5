#include "gs/entity/types/frigatedef.h"

namespace Vorn {

void FrigateDef::Fields(FieldIo& io) {
    io.Block(attacker);
    io.Block(fleetMember);
    io.Block(bombPlanet);
    io.Block(frigate);
    io.Block(damage);
    io.Block(hud);
    io.Block(userInterface);
    io.Block(weaponOwner);
    WeaponLevelFields(io);
    io.Block(rigidBody);
    io.Block(shield);
    io.Block(physics);
    io.Block(hyperspace);
    io.Block(squads);
    io.Uint(u"maxNumCommandPoints", maxNumCommandPoints);
    io.Block(unitSound);
    io.Block(changeMesh);
    io.Value(u"ExhaustParticleSystemName", exhaustParticleSystemName);
    io.Value(u"ExplosionName", explosionName);
    hyperspace.OldSoundFields(io);
    io.Value(u"EngineSoundID", engineSoundID);
    io.Block(abilities);
    io.Float(u"MaxAntiMatter", maxAntiMatter);
    io.Float(u"AntiMatterRestoreRate", antiMatterRestoreRate);
    io.Block(cargoShip);
    io.Block(formationMember);
    io.Block(render);
    io.Block(envoy);
}

void FrigateDef::WeaponLevelFields(FieldIo& io) {
    io.Bool(u"hasWeaponLevels", hasWeaponLevels);
    if (!hasWeaponLevels) {
        return;
    }
    io.Record(u"weaponDamageMult", weaponDamageMult);
    io.Record(u"weaponCooldownMult", weaponCooldownMult);
    if (io.Reading()) {
        CheckAssert(weaponDamageMult.GetValueAtLevel(0) == 1.0f, "m_weaponDamageMult.GetValueAtLevel(0) == 1.f");
        CheckAssert(weaponCooldownMult.GetValueAtLevel(0) == 1.0f, "m_weaponCooldownMult.GetValueAtLevel(0) == 1.f");
    }
}

} // namespace Vorn
