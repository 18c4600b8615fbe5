#include "gs/player/playerainamedata.h"

namespace Vorn {

void PlayerAINameData::Fields(FieldIo& io) {
    io.GrowingList(u"nameCount", names, io.Strings(u"name"));
}

} // namespace Vorn
