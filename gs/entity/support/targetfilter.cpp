#include "gs/entity/support/targetfilter.h"

namespace Vorn {

void TargetFilter::Fields(FieldIo& io) {
    io.CappedList(u"numOwnerships", ownerships, io.Enums(u"ownership"));
    io.CappedList(u"numObjects", objects, io.Enums(u"object"));
    io.CappedList(u"numSpaces", spaces, io.Enums(u"space"));
    io.CappedList(u"numConstraints", constraints, io.Enums(u"constraint"));
    if (io.Reading()) {
        CheckAssert(objects.Size() > 0, "objects.Size() > 0");
    }
}

} // namespace Vorn
