#include "gs/entity/interfaces/ientryvehicledefinition.h"

namespace Vorn {

void IEntryVehicleDefinition::Fields(FieldIo& io) {
    io.String(u"AtmosphereEntryEffectName", atmosphereEntryEffectName, NameKind::Particle);
    io.Bool(u"HasSurfaceImpactEffect", hasSurfaceImpactEffect);
    io.Value(u"SurfaceImpactEffectName", surfaceImpactEffectName);
    io.Value(u"SurfaceImpactSoundID", surfaceImpactSoundID);
    io.Value(u"LaunchSoundID", launchSoundID);
}

} // namespace Vorn
