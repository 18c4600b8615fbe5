#include "gs/entity/support/spawnships.h"

namespace Vorn {

void SpawnShipsRequiredEntity::Fields(FieldIo& io) {
    io.Value(u"type", type);
    io.Uint(u"minCount", minCount);
    io.Uint(u"maxCount", maxCount);
}

void SpawnShipsRandomEntity::Fields(FieldIo& io) {
    io.Value(u"type", type);
    io.Uint(u"weight", weight);
}

void SpawnShips::Fields(FieldIo& io) {
    io.BoundedList(u"requiredShipCount", requiredShips, io.Records(u"requiredShip"));
    io.BoundedList(u"randomShipCount", randomShips, io.Records(u"randomShip"));
}

void SpawnShipsWithInternalFleetPoints::Fields(FieldIo& io) {
    io.Float(u"minFleetPoints", minFleetPoints);
    io.Float(u"maxFleetPoints", maxFleetPoints);
    io.Block(ships);
}

} // namespace Vorn
