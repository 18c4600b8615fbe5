#include "gs/entity/interfaces/idebrisdef.h"

namespace Vorn {

void IDebrisDef::Fields(FieldIo& io) {
    io.Float(u"averageLifetime", averageLifetime);
    io.Float(u"lifetimeVariancePerc", lifetimeVariancePerc);
    io.Float(u"minLinearSpeed", minLinearSpeed);
    io.Float(u"maxLinearSpeed", maxLinearSpeed);
    io.Float(u"minAngularSpeed", minAngularSpeed);
    io.Float(u"maxAngularSpeed", maxAngularSpeed);
    io.Float(u"dragRate", dragRate);
}

} // namespace Vorn
