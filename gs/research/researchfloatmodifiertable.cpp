#include "gs/research/researchfloatmodifiertable.h"

namespace Vorn {

namespace {
consteval std::int32_t Row(std::u16string_view text) {
    return RowNumber<ResearchFloatModifierType>(text);
}
} // namespace

void ResearchFloatModifierTable::Fields(FieldIo& io) {
    io.Enum(u"modifierType", modifierType);
    io.Float(u"baseValue", baseValue);
    io.Float(u"perLevelValue", perLevelValue);
    switch (static_cast<std::int32_t>(modifierType)) {
    case Row(u"PlanetPopulationCapAdjustment"):
        io.Enum(u"linkedPlanetType", linkedPlanetType);
        break;
    case Row(u"PlanetUpgradeBuildRateAdjustment"):
    case Row(u"PlanetUpgradeCostAdjustment"):
        io.Enum(u"linkedPlanetUpgradeType", linkedPlanetUpgradeType);
        break;
    case Row(u"WeaponDamageAdjustment"):
    case Row(u"WeaponDamageAdjustmentWhenInFriendlyGravityWell"):
    case Row(u"WeaponDamageAdjustmentWhenInGravityWellBeingBombed"):
    case Row(u"WeaponDamageAdjustmentForEachAlliedPlayerInGravityWell"):
    case Row(u"WeaponIgnoresShieldsAdjustment"):
    case Row(u"WeaponRangeAdjustment"):
    case Row(u"WeaponRateOfFireAdjustment"):
    case Row(u"WeaponRateOfFireAdjustmentWhenInGravityWellBeingBombed"):
        io.Enum(u"linkedWeaponClass", linkedWeaponClass);
        break;
    default:
        break;
    }
}

} // namespace Vorn
