#include "gs/entity/support/planetruindefinition.h"

namespace Vorn {

void PlanetRuinDefinition::Fields(FieldIo& io) {
    io.Value(u"ruinPlanetType", ruinPlanetType);
    io.Enum(u"attachType", attachType);
    io.Value(u"effectName", effectName);
    io.Float(u"startTime", startTime);
    io.Value(u"soundID", soundID);
    io.Float(u"creditsOnStrippedToTheCore", creditsOnStrippedToTheCore);
    io.Float(u"metalOnStrippedToTheCore", metalOnStrippedToTheCore);
    io.Float(u"crystalOnStrippedToTheCore", crystalOnStrippedToTheCore);
    io.Float(u"extraScuttleTimeOnStrip", extraScuttleTimeOnStrip);
}

} // namespace Vorn
