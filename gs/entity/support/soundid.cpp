#include "gs/entity/support/soundid.h"

namespace Vorn {

void SoundIDVector::Fields(FieldIo& io) {
    io.GrowingList(u"soundCount", sounds, [&](SoundID& sound) { io.Value(u"sound", sound); });
}

} // namespace Vorn
