#include "gs/entity/support/targetfilter.h"

namespace Vorn {

void TargetFilter::Fields(FieldIo& io) {
    io.CappedList(u"numOwnerships", ownerships, [&](auto& ownership) { io.Enum(u"ownership", ownership); });
    io.CappedList(u"numObjects", objects, [&](auto& object) { io.Enum(u"object", object); });
    io.CappedList(u"numSpaces", spaces, [&](auto& space) { io.Enum(u"space", space); });
    io.CappedList(u"numConstraints", constraints, [&](auto& constraint) { io.Enum(u"constraint", constraint); });
    if (io.Reading()) {
        CheckAssert(objects.Size() > 0, "objects.Size() > 0");
    }
}

} // namespace Vorn
