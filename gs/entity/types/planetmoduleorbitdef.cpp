#include "gs/entity/types/planetmoduleorbitdef.h"

namespace Vorn {

void PlanetModuleOrbitDef::Fields(FieldIo& io) {
    io.Block(userInterface);
    io.Block(abilities);
    io.Float(u"MaxAntiMatter", maxAntiMatter);
    io.Float(u"AntiMatterRestoreRate", antiMatterRestoreRate);
    io.Block(damage);
    io.Block(hud);
    io.Block(planetModule);
    io.Block(autoRotate);
    io.Block(shield);
    io.Block(unitSound);
    io.Block(changeMesh);
    io.Value(u"ExplosionName", explosionName);
    io.Value(u"mainViewIcon", mainViewIcon);
    io.Value(u"picture", picture);
    io.Block(render);
    io.Block(formationMember);
    io.Block(buildOverTime);
}

} // namespace Vorn
