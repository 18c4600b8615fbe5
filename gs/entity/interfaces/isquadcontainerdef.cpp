#include "gs/entity/interfaces/isquadcontainerdef.h"

namespace Vorn {

namespace {
constexpr Label kTypeLabels[ISquadContainerDef::kSlotCount] = {u"squadTypeEntityDef:0", u"squadTypeEntityDef:1",
                                                               u"squadTypeEntityDef:2", u"squadTypeEntityDef:3"};
constexpr Label kCostLabels[ISquadContainerDef::kSlotCount] = {u"squadAntiMatterCost:0", u"squadAntiMatterCost:1",
                                                               u"squadAntiMatterCost:2", u"squadAntiMatterCost:3"};
} // namespace

void ISquadContainerDef::Fields(FieldIo& io) {
    for (int i = 0; i < kSlotCount; ++i) {
        io.Value(kTypeLabels[i], squads[i].squadTypeEntityDef);
        io.Float(kCostLabels[i], squads[i].squadAntiMatterCost);
    }
}

} // namespace Vorn
