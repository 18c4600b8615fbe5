#include "gs/entity/support/planetresourcesetupinfo.h"

namespace Vorn {

void PlanetResourceAsteroidSetupInfo::Fields(FieldIo& io) {
    io.Uint(u"minCount", minCount);
    io.Uint(u"maxCount", maxCount);
    io.Float(u"extractionRate", extractionRate);
    io.Float(u"refineryRate", refineryRate);
    io.Uint(u"maxRefineryCount", maxRefineryCount);
}

void PlanetResourceSetupInfo::Fields(FieldIo& io) {
    io.Float(u"asteroidSpawnAngleVariance", asteroidSpawnAngleVariance);
    io.Uint(u"totalMaxResourceAsteroids", totalMaxResourceAsteroids);
    io.Record(u"metalResourceAsteroidSetup", metal);
    io.Record(u"crystalResourceAsteroidSetup", crystal);
    io.Record(u"neutralMetalResourceAsteroidSetup", neutralMetal);
    io.Record(u"neutralCrystalResourceAsteroidSetup", neutralCrystal);
}

} // namespace Vorn
