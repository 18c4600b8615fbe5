#include "gs/entity/types/largeshipdef.h"

namespace Vorn {

void LargeShipDef::CommandFields(FieldIo& io) {
    io.Block(abilities);
    io.Block(attacker);
    io.Block(fleetMember);
}

void LargeShipDef::BodyFields(FieldIo& io) {
    io.Block(damage);
    io.Block(hud);
    io.Block(userInterface);
    io.Block(weaponOwner);
    io.Block(rigidBody);
    io.Block(shield);
    io.Block(physics);
    io.Block(hyperspace);
}

void LargeShipDef::TailFields(FieldIo& io) {
    io.Value(u"ExhaustParticleSystemName", exhaustParticleSystemName);
    io.Value(u"ExplosionName", explosionName);
    io.Record(u"CommandPoints", commandPoints);
    io.Record(u"weaponCooldownDecreasePerc", weaponCooldownDecreasePerc);
    io.Record(u"weaponDamageIncreasePerc", weaponDamageIncreasePerc);
    hyperspace.OldSoundFields(io);
    io.Value(u"EngineSoundID", engineSoundID);
    io.Block(formationMember);
    io.Block(render);
}

} // namespace Vorn
