#pragma once

#include "engine/archive/record.h"

namespace Vorn {

// The resource asteroids of one kind at a planet and what they yield.
struct PlanetResourceAsteroidSetupInfo : Record {
    std::uint32_t minCount = 0;
    std::uint32_t maxCount = 0;
    float extractionRate = 0.0f;
    float refineryRate = 0.0f;
    std::uint32_t maxRefineryCount = 0;

    void Fields(FieldIo& io) override;
};

// All resource asteroids of a planet.
struct PlanetResourceSetupInfo : Record {
    float asteroidSpawnAngleVariance = 0.0f;
    std::uint32_t totalMaxResourceAsteroids = 0;
    PlanetResourceAsteroidSetupInfo metal;
    PlanetResourceAsteroidSetupInfo crystal;
    PlanetResourceAsteroidSetupInfo neutralMetal;
    PlanetResourceAsteroidSetupInfo neutralCrystal;

    void Fields(FieldIo& io) override;
};

} // namespace Vorn
