#include "gs/entity/interfaces/ihuddefinition.h"

namespace Vorn {

void IHUDDefinition::Fields(FieldIo& io) {
    io.Value(u"hudIcon", hudIcon);
    io.Value(u"smallHudIcon", smallHudIcon);
    io.Value(u"infoCardIcon", infoCardIcon);
}

} // namespace Vorn
