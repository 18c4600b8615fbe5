#include "gs/entity/types/cannonshelldef.h"

namespace Vorn {

void CannonShellDef::Fields(FieldIo& io) {
    io.Float(u"acceleration", acceleration);
    io.Float(u"startingSpeed", startingSpeed);
    io.Float(u"maxSpeed", maxSpeed);
    io.Value(u"buffToApplyOnImpact", buffToApplyOnImpact);
    io.Value(u"planetImpactEffectName", planetImpactEffectName);
    io.Record(u"planetImpactSounds", planetImpactSounds);
    io.Float(u"planetImpactCameraShakeMaxSize", planetImpactCameraShakeMaxSize);
    io.Float(u"planetImpactCameraShakeStrength", planetImpactCameraShakeStrength);
    io.Float(u"planetImpactCameraShakeDuration", planetImpactCameraShakeDuration);
    io.String(u"meshName", meshName, NameKind::Mesh);
    io.Value(u"mainViewIcon", mainViewIcon);
    io.Value(u"picture", picture);
    io.String(u"nameStringID", nameStringID, NameKind::StringId);
    io.String(u"descStringID", descStringID, NameKind::StringId);
    io.Bool(u"renderMesh", renderMesh);
    io.Block(userInterface);
    io.Block(hud);
    io.Block(render);
}

} // namespace Vorn
