#include "gs/entity/interfaces/iattackerdefinition.h"

namespace Vorn {

void IAttackerDefinition::Fields(FieldIo& io) {
    io.Enum(u"defaultAutoAttackRange", defaultAutoAttackRange);
    io.Bool(u"defaultAutoAttackOn", defaultAutoAttackOn);
    io.Bool(u"prefersToFocusFire", prefersToFocusFire);
    io.Bool(u"usesFighterAttack", usesFighterAttack);
}

} // namespace Vorn
