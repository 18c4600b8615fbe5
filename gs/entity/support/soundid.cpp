#include "gs/entity/support/soundid.h"

namespace Vorn {

void SoundIDVector::Fields(FieldIo& io) {
    io.GrowingList(u"soundCount", sounds, io.Values(u"sound"));
}

} // namespace Vorn
