#include "gs/entity/interfaces/irigidbodydefinition.h"

namespace Vorn {

void IRigidBodyDefinition::Fields(FieldIo& io) {
    io.Float(u"mass", mass);
    if (io.Reading()) {
        CheckAssert(mass > 0.0f, "m_mass > 0.f");
    }
}

} // namespace Vorn
