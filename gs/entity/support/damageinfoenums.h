#pragma once

#include "engine/archive/record.h"
#include "gs/entity/support/sharedenums.h"

namespace Vorn {

// The kinds of damage that something deals.
struct DamageInfoEnums : Record {
    AttackType attackType = AttackType::Invalid;
    DamageAffectType damageAffectType = DamageAffectType::Invalid;
    DamageApplyType damageApplyType = DamageApplyType::Invalid;
    DamageType damageType = DamageType::Invalid;
    WeaponClassType weaponClassType = WeaponClassType::Invalid;

    void Fields(FieldIo& io) override;
};

} // namespace Vorn
