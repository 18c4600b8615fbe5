#include "gs/entity/interfaces/ishielddefinition.h"

namespace Vorn {

void IShieldDefinition::Fields(FieldIo& io) {
    io.String(u"ShieldMeshName", shieldMeshName, NameKind::Mesh);
    io.Bool(u"renderShield", renderShield);
}

} // namespace Vorn
