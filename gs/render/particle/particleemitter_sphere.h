#pragma once

#include "gs/render/particle/particleemitter.h"

#include <numbers>

namespace Vorn {

// Emits from a sphere, ellipsoid or a sector of one, between angles in radians. Its files hold each maximum before the
// minimum.
class ParticleEmitter_Sphere final : public ParticleEmitter {
public:
    using ParticleEmitter::ParticleEmitter;

    void Fields(FieldIo& io) override;

private:
    float sphereRadiusXMax = 10.0f;
    float sphereRadiusXMin = 10.0f;
    float sphereRadiusYMax = 10.0f;
    float sphereRadiusYMin = 10.0f;
    float sphereRadiusZMax = 10.0f;
    float sphereRadiusZMin = 10.0f;
    float particleMaxStartSpeedAzimuthalTangential = 0.0f;
    float particleMaxStartSpeedPolarTangential = 0.0f;
    Bool scaleStartSpeedsByRadius = false;
    float spawnAngleLatitudinalStart = 0.0f;
    float spawnAngleLatitudinalStop = std::numbers::pi_v<float>;
    float spawnAngleLongitudinalStart = 0.0f;
    float spawnAngleLongitudinalStop = 2.0f * std::numbers::pi_v<float>;
};

} // namespace Vorn
