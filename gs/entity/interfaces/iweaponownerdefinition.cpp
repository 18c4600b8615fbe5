#include "gs/entity/interfaces/iweaponownerdefinition.h"

namespace Vorn {

namespace {
constexpr Label kTargetCountLabels[kWeaponBankCount] = {u"TargetCountPerBank:FRONT", u"TargetCountPerBank:BACK",
                                                        u"TargetCountPerBank:LEFT", u"TargetCountPerBank:RIGHT"};
}

void IWeaponOwnerDefinition::Fields(FieldIo& io) {
    io.BoundedList(u"NumWeapons", weapons, io.Records(u"Weapon"));
    io.Uint(u"m_weaponIndexForRange", weaponIndexForRange);
    io.Enum(u"firingAlignmentType", firingAlignmentType);
    if (io.Reading()) {
        // No owner can fire from its sides yet; the value is kept.
        CheckAssert(firingAlignmentType != FiringAlignmentType::BroadSide, "false");
    }
    if (firingAlignmentType == FiringAlignmentType::TiltForward) {
        io.Degrees(u"firingTiltAngle", firingTiltAngle);
    }
    io.LabelledArray(kTargetCountLabels, targetCountPerBank, &FieldIo::Uints);
    io.Bool(u"canOnlyTargetStructures", canOnlyTargetStructures);
}

} // namespace Vorn
