#include "gs/entity/types/starbasedef.h"

namespace Vorn {

void StarBaseDef::Fields(FieldIo& io) {
    io.Block(abilities);
    io.Block(attacker);
    io.Block(damage);
    io.Block(hud);
    io.Block(userInterface);
    io.Block(weaponOwner);
    io.Block(shield);
    io.Block(squads);
    io.Block(starBase);
    io.Block(changeMesh);
    io.Block(unitSound);
    io.Value(u"ExplosionName", explosionName);
    io.Block(formationMember);
    io.Block(render);
    io.Block(tradePort);
    io.Block(buildOverTime);
    io.Block(autoRotate);
    io.Block(physics);
    io.Block(hyperspace);
    io.Block(rigidBody);
    // These are not at the place of the block that replaced them.
    hyperspace.OldSoundFields(io);
}

} // namespace Vorn
