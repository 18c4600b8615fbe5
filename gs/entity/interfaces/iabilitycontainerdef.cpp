#include "gs/entity/interfaces/iabilitycontainerdef.h"

namespace Vorn {

namespace {
constexpr Label kSlotLabels[IAbilityContainerDef::kSlotCount] = {u"ability:0", u"ability:1", u"ability:2", u"ability:3",
                                                                 u"ability:4"};
}

void IAbilityContainerDef::Fields(FieldIo& io) {
    io.LabelledArray(kSlotLabels, abilities, &FieldIo::Values);
}

} // namespace Vorn
