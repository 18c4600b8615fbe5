#include "gs/render/particle/particleemitter_ring.h"

namespace Vorn {

void ParticleEmitter_Ring::Fields(FieldIo& io) {
    ParticleEmitter::Fields(io);
    io.Float(u"RingRadiusXMin", ringRadiusXMin);
    io.Float(u"RingRadiusXMax", ringRadiusXMax);
    io.Float(u"RingRadiusYMin", ringRadiusYMin);
    io.Float(u"RingRadiusYMax", ringRadiusYMax);
    io.Float(u"ParticleMaxStartSpeedTangential", particleMaxStartSpeedTangential);
    io.Float(u"ParticleMaxStartSpeedRingNormal", particleMaxStartSpeedRingNormal);
    io.Bool(u"ScaleStartSpeedsByRadius", scaleStartSpeedsByRadius);
    io.Float(u"SpawnAngleStart", spawnAngleStart);
    io.Float(u"SpawnAngleStop", spawnAngleStop);
    io.Float(u"minSpawnHeight", minSpawnHeight);
    io.Float(u"maxSpawnHeight", maxSpawnHeight);
    io.Bool(u"spawnDirectionIsParallelToPlane", spawnDirectionIsParallelToPlane);
    io.Bool(u"isSpawnAngleRandom", isSpawnAngleRandom);
    io.Uint(u"nonRandomSpawnLoopEmittedParticleCount", nonRandomSpawnLoopEmittedParticleCount);
}

} // namespace Vorn
