#include "gs/entity/interfaces/ilargeshipdefinition.h"

namespace Vorn {

void ILargeShipDefinition::Fields(FieldIo& io) {
    io.Value(u"mainViewIcon", mainViewIcon);
    io.Record(u"basePrice", basePrice);
    io.Float(u"slotCount", slotCount);
    io.Float(u"BuildTime", buildTime);
    io.Record(u"MaxHullPoints", maxHullPoints);
    io.Record(u"MaxShieldPoints", maxShieldPoints);
    io.Record(u"HullPointRestoreRate", hullPointRestoreRate);
    io.Record(u"ShieldPointRestoreRate", shieldPointRestoreRate);
    io.Record(u"ArmorPointsFromExperience", armorPointsFromExperience);
    io.Record(u"maxMitigation", maxMitigation);
    io.Record(u"MaxAntiMatter", maxAntiMatter);
    io.Record(u"AntiMatterRestoreRate", antiMatterRestoreRate);
    io.Record(u"CultureProtectRate", cultureProtectRate);
    io.String(u"NameStringID", nameStringID, NameKind::StringId);
    io.String(u"DescriptionStringID", descriptionStringID, NameKind::StringId);
    io.Value(u"picture", picture);
    io.Record(u"Prerequisites", prerequisites);
}

} // namespace Vorn
