#include "gs/entity/support/buffweaponeffects.h"

namespace Vorn {

void BuffWeaponEffects::Fields(FieldIo& io) {
    io.Bool(u"hasWeaponEffects", hasWeaponEffects);
    if (!hasWeaponEffects) {
        return;
    }
    OriginFields(io);
    io.Enum(u"weaponEffectImpactOffsetType", weaponEffectImpactOffsetType);
    io.Bool(u"canWeaponEffectHitHull", canWeaponEffectHitHull);
    io.Bool(u"canWeaponEffectHitShields", canWeaponEffectHitShields);
    io.Record(u"weaponEffectsDef", weaponEffectsDef);
}

void BuffWeaponEffects::OriginFields(FieldIo& io) {
    io.Enum(u"weaponEffectOriginType", weaponEffectOriginType);
    switch (weaponEffectOriginType) {
    case WeaponEffectOriginType::Targetter:
        io.Record(u"weaponEffectAttachInfo", weaponEffectAttachInfo);
        break;
    case WeaponEffectOriginType::Target:
        io.Record(u"targetCentricEffectPointSpawnInfo", targetCentricEffectPointSpawnInfo);
        break;
    case WeaponEffectOriginType::Invalid:
        CheckAssert(false, "false");
        break;
    }
}

} // namespace Vorn
