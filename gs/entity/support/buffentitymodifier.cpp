#include "gs/entity/support/buffentitymodifier.h"

namespace Vorn {

void BuffEntityModifier::Fields(FieldIo& io) {
    io.Enum(u"buffEntityModifierType", buffEntityModifierType);
    io.Record(u"value", value);
}

} // namespace Vorn
