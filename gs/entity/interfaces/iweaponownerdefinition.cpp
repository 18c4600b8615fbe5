#include "gs/entity/interfaces/iweaponownerdefinition.h"

namespace Vorn {

namespace {
constexpr Label kTargetCountLabels[kWeaponBankCount] = {u"TargetCountPerBank:FRONT", u"TargetCountPerBank:BACK",
                                                        u"TargetCountPerBank:LEFT", u"TargetCountPerBank:RIGHT"};
}

void IWeaponOwnerDefinition::Fields(FieldIo& io) {
    io.BoundedList(u"NumWeapons", weapons, [&](IWeaponDefinition& weapon) { io.Record(u"Weapon", weapon); });
    io.Uint(u"m_weaponIndexForRange", weaponIndexForRange);
    io.Enum(u"firingAlignmentType", firingAlignmentType);
    if (io.Reading()) {
        // No owner fires from its sides so far; the value is kept.
        CheckAssert(firingAlignmentType != FiringAlignmentType::BroadSide, "false");
    }
    if (firingAlignmentType == FiringAlignmentType::TiltForward) {
        io.Degrees(u"firingTiltAngle", firingTiltAngle);
    }
    for (int i = 0; i < kWeaponBankCount; ++i) {
        io.Uint(kTargetCountLabels[i], targetCountPerBank[i]);
    }
    io.Bool(u"canOnlyTargetStructures", canOnlyTargetStructures);
}

} // namespace Vorn
