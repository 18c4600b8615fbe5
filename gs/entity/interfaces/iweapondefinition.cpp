#include "gs/entity/interfaces/iweapondefinition.h"

namespace Vorn {

namespace {
constexpr Label kDamageLabels[kWeaponBankCount] = {u"DamagePerBank:FRONT", u"DamagePerBank:BACK", u"DamagePerBank:LEFT",
                                                   u"DamagePerBank:RIGHT"};
}

void IWeaponDefinition::Fields(FieldIo& io) {
    io.Enum(u"WeaponType", weaponType);
    io.Record(u"damageEnums", damageEnums);
    io.LabelledArray(kDamageLabels, damagePerBank, &FieldIo::Floats);
    io.Float(u"Range", range);
    io.Float(u"PreBuffCooldownTime", preBuffCooldownTime);
    io.Bool(u"CanFireAtFighter", canFireAtFighter);
    io.Bool(u"SynchronizedTargeting", synchronizedTargeting);
    io.Float(u"PointStaggerDelay", pointStaggerDelay);
    io.Float(u"TravelSpeed", travelSpeed);
    io.Float(u"Duration", duration);
    FireConstraintFields(io);
    io.Record(u"WeaponEffects", weaponEffects);
    if (io.Reading()) {
        CheckValues();
    }
}

void IWeaponDefinition::FireConstraintFields(FieldIo& io) {
    io.Enum(u"fireConstraintType", fireConstraintType);
    switch (fireConstraintType) {
    case WeaponFireConstaintType::CanAlwaysFire:
        break;
    case WeaponFireConstaintType::Research:
        io.Record(u"researchPrerequisites", researchPrerequisites);
        break;
    case WeaponFireConstaintType::StarBaseUpgradeLevel:
        io.Uint(u"requiredStarBaseWeaponLevel", requiredStarBaseWeaponLevel);
        break;
    case WeaponFireConstaintType::Invalid:
        CheckAssert(false, "false");
        break;
    }
}

void IWeaponDefinition::CheckValues() const {
    CheckAssert(pointStaggerDelay >= 0.0f, "m_PointStaggerDelay >= 0.f");
    CheckAssert(weaponEffects.weaponType == weaponType, "m_weaponEffectsDef.weaponType == m_WeaponType");
    if (weaponType == WeaponType::Beam) {
        CheckAssert(travelSpeed <= 0.0f, "m_TravelSpeed <= 0.f");
        CheckAssert(duration >= 0.0f, "m_Duration >= 0.f");
    } else if (weaponType != WeaponType::Invalid) {
        CheckAssert(travelSpeed > 0.0f, "m_TravelSpeed > 0.f");
        CheckAssert(duration <= 0.0f, "m_Duration <= 0.f");
    }
}

} // namespace Vorn
