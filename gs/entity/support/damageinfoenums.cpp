#include "gs/entity/support/damageinfoenums.h"

namespace Vorn {

void DamageInfoEnums::Fields(FieldIo& io) {
    io.Enum(u"AttackType", attackType);
    io.Enum(u"DamageAffectType", damageAffectType);
    io.Enum(u"DamageApplyType", damageApplyType);
    io.Enum(u"DamageType", damageType);
    io.Enum(u"WeaponClassType", weaponClassType);
}

} // namespace Vorn
