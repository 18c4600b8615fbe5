#include "gs/player/playerdefentities.h"

namespace Vorn {

constexpr Label PlayerDefEntities::kPageLabels[] = {u"Page:0", u"Page:1"};

void PlayerDefEntities::FrigateInfo::Fields(FieldIo& io) {
    Pages::Fields(io);
    io.Record(u"NotOnPage", notOnPage);
}

void PlayerDefEntities::Fields(FieldIo& io) {
    io.Record(u"planetModuleInfo", planetModuleInfo);
    io.Record(u"titanInfo", titanInfo);
    io.Record(u"capitalShipInfo", capitalShipInfo);
    io.Record(u"frigateInfo", frigateInfo);
    io.Record(u"researchInfo", researchInfo);
    io.Record(u"starBaseInfo", starBaseInfo);
    io.Value(u"flagship", flagship);
}

} // namespace Vorn
