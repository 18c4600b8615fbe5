#include "gs/player/playerplanetelevatordata.h"

namespace Vorn {

namespace {

constexpr Label kMeshNameLabels[] = {
    u"elevatorMeshName:TaxCenter",        u"elevatorMeshName:CultureCenter", u"elevatorMeshName:MetalExtractor",
    u"elevatorMeshName:CrystalExtractor", u"elevatorMeshName:Bunker",        u"elevatorMeshName:GoodsFactory",
    u"elevatorMeshName:ProductionCenter",
};

} // namespace

void PlayerPlanetElevatorData::Fields(FieldIo& io) {
    io.LabelledArray(kMeshNameLabels, meshNames, &FieldIo::Strings);
}

} // namespace Vorn
