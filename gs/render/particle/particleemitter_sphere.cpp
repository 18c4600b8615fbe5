#include "gs/render/particle/particleemitter_sphere.h"

namespace Vorn {

void ParticleEmitter_Sphere::Fields(FieldIo& io) {
    ParticleEmitter::Fields(io);
    io.Float(u"SphereRadiusXMax", sphereRadiusXMax);
    io.Float(u"SphereRadiusXMin", sphereRadiusXMin);
    io.Float(u"SphereRadiusYMax", sphereRadiusYMax);
    io.Float(u"SphereRadiusYMin", sphereRadiusYMin);
    io.Float(u"SphereRadiusZMax", sphereRadiusZMax);
    io.Float(u"SphereRadiusZMin", sphereRadiusZMin);
    io.Float(u"ParticleMaxStartSpeedAzimuthalTangential", particleMaxStartSpeedAzimuthalTangential);
    io.Float(u"ParticleMaxStartSpeedPolarTangential", particleMaxStartSpeedPolarTangential);
    io.Bool(u"ScaleStartSpeedsByRadius", scaleStartSpeedsByRadius);
    io.Float(u"SpawnAngleLatitudinalStart", spawnAngleLatitudinalStart);
    io.Float(u"SpawnAngleLatitudinalStop", spawnAngleLatitudinalStop);
    io.Float(u"SpawnAngleLongitudinalStart", spawnAngleLongitudinalStart);
    io.Float(u"SpawnAngleLongitudinalStop", spawnAngleLongitudinalStop);
}

} // namespace Vorn
