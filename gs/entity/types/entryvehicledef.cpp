#include "gs/entity/types/entryvehicledef.h"

namespace Vorn {

void EntryVehicleDef::Fields(FieldIo& io) {
    io.Block(entryVehicle);
    io.Block(rigidBody);
    io.Block(physics);
    io.String(u"MeshName", meshName, NameKind::Mesh);
    io.Value(u"ExhaustParticleSystemName", exhaustParticleSystemName);
    io.String(u"ExhaustTrailTextureName", exhaustTrailTextureName);
    io.Float(u"ExhaustTrailWidth", exhaustTrailWidth);
    io.Value(u"AtmosphereEntrySoundID", atmosphereEntrySoundID);
    io.Value(u"SpaceTravelSoundID", spaceTravelSoundID);
    io.Block(render);
}

} // namespace Vorn
