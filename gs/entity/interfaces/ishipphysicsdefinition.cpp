#include "gs/entity/interfaces/ishipphysicsdefinition.h"

namespace Vorn {

void IShipPhysicsDefinition::Fields(FieldIo& io) {
    io.Float(u"maxAccelerationLinear", maxAccelerationLinear);
    io.Float(u"maxAccelerationStrafe", maxAccelerationStrafe);
    io.Float(u"maxDecelerationLinear", maxDecelerationLinear);
    io.Degrees(u"maxAccelerationAngular", maxAccelerationAngular);
    io.Degrees(u"maxDecelerationAngular", maxDecelerationAngular);
    io.Float(u"maxSpeedLinear", maxSpeedLinear);
    io.Degrees(u"maxRollRate", maxRollRate);
    io.Degrees(u"maxRollAngle", maxRollAngle);
}

} // namespace Vorn
