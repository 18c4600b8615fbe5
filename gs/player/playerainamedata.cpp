#include "gs/player/playerainamedata.h"

namespace Vorn {

void PlayerAINameData::Fields(FieldIo& io) {
    io.GrowingList(u"nameCount", names, [&](FixedString<256>& name) { io.String(u"name", name); });
}

} // namespace Vorn
