#pragma once

#include "gs/render/particle/particleemitter.h"

#include <numbers>

namespace Vorn {

// Emits from a ring, ellipse or disc, between two angles in radians.
class ParticleEmitter_Ring final : public ParticleEmitter {
public:
    using ParticleEmitter::ParticleEmitter;

    void Fields(FieldIo& io) override;

private:
    float ringRadiusXMin = 10.0f;
    float ringRadiusXMax = 10.0f;
    float ringRadiusYMin = 10.0f;
    float ringRadiusYMax = 10.0f;
    float particleMaxStartSpeedTangential = 0.0f;
    float particleMaxStartSpeedRingNormal = 0.0f;
    Bool scaleStartSpeedsByRadius = false;
    float spawnAngleStart = 0.0f;
    float spawnAngleStop = 2.0f * std::numbers::pi_v<float>;
    float minSpawnHeight = 0.0f;
    float maxSpawnHeight = 0.0f;
    Bool spawnDirectionIsParallelToPlane = true;
    Bool isSpawnAngleRandom = true;
    std::uint32_t nonRandomSpawnLoopEmittedParticleCount = 0;
};

} // namespace Vorn
