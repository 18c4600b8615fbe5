#include "gs/entity/interfaces/ifrigatedefinition.h"

#include "gs/contentversions.h"

namespace Vorn {

void IFrigateDefinition::Fields(FieldIo& io) {
    io.CappedList(u"typeCount", frigateRoleTypes, io.Enums(u"frigateRoleType"));
    io.Enum(u"statCountType", statCountType);
    io.Value(u"mainViewIcon", mainViewIcon);
    io.Value(u"picture", picture);
    io.String(u"NameStringID", nameStringID, NameKind::StringId);
    io.String(u"DescriptionStringID", descriptionStringID, NameKind::StringId);
    io.String(u"counterDescriptionStringID", counterDescriptionStringID, NameKind::StringId);
    io.Record(u"basePrice", basePrice);
    io.Float(u"slotCount", slotCount);
    io.Float(u"BuildTime", buildTime);
    io.Bool(u"hasLevels", hasLevels);
    LevelFloat(io, u"ExperiencePointsForDestroying", experiencePointsForDestroying, hasLevels);
    LevelFloat(io, u"MaxHullPoints", maxHullPoints, hasLevels);
    LevelFloat(io, u"MaxShieldPoints", maxShieldPoints, hasLevels);
    LevelFloat(io, u"HullPointRestoreRate", hullPointRestoreRate, hasLevels);
    LevelFloat(io, u"ShieldPointRestoreRate", shieldPointRestoreRate, hasLevels);
    LevelFloat(io, u"BaseArmorPoints", baseArmorPoints, hasLevels);
    LevelFloat(io, u"maxMitigation", maxMitigation, hasLevels);
    if (io.Since(kRelationshipChangeRateVersion)) {
        LevelFloat(io, u"relationshipChangeRate", relationshipChangeRate, hasLevels);
    }
    io.Record(u"Prerequisites", prerequisites);
}

} // namespace Vorn
