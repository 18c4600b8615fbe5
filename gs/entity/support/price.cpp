#include "gs/entity/support/price.h"

namespace Vorn {

void Price::Fields(FieldIo& io) {
    io.Float(u"credits", credits);
    io.Float(u"metal", metal);
    io.Float(u"crystal", crystal);
}

} // namespace Vorn
