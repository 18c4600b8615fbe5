#pragma once

#include "engine/archive/record.h"
#include "gs/entity/support/sharedenums.h"

namespace Vorn {

// How an entity attacks unless it is ordered otherwise.
struct IAttackerDefinition : Record {
    AutoAttackRange defaultAutoAttackRange = AutoAttackRange::Invalid;
    Bool defaultAutoAttackOn;
    Bool prefersToFocusFire;
    Bool usesFighterAttack;

    void Fields(FieldIo& io) override;
};

} // namespace Vorn
