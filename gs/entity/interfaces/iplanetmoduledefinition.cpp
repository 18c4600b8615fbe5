#include "gs/entity/interfaces/iplanetmoduledefinition.h"

namespace Vorn {

void IPlanetModuleDefinition::Fields(FieldIo& io) {
    io.Enum(u"planetUpgradeSlotType", planetUpgradeSlotType);
    io.Float(u"planetUpgradeSlotCount", planetUpgradeSlotCount);
    io.Record(u"basePrice", basePrice);
    io.String(u"NameStringID", nameStringID, NameKind::StringId);
    io.String(u"DescriptionStringID", descriptionStringID, NameKind::StringId);
    io.Enum(u"planetModuleRoleType", planetModuleRoleType);
    io.Enum(u"statCountType", statCountType);
    io.Record(u"Prerequisites", prerequisites);
    io.Float(u"MaxHullPoints", maxHullPoints);
    io.Float(u"HullPointRestoreRate", hullPointRestoreRate);
    io.Float(u"BaseArmorPoints", baseArmorPoints);
    io.Float(u"MaxShieldPoints", maxShieldPoints);
    io.Float(u"ShieldPointRestoreRate", shieldPointRestoreRate);
    io.Float(u"maxShieldMitigation", maxShieldMitigation);
    io.Float(u"ExperiencePointsForDestroying", experiencePointsForDestroying);
    io.Enum(u"resourceExtractionType", resourceExtractionType);
    io.Float(u"cultureSpreadRate", cultureSpreadRate);
    io.Bool(u"isAffectedBySimilarModuleCostResearch", isAffectedBySimilarModuleCostResearch);
    io.Float(u"placementRadius", placementRadius);
    io.Float(u"nearPlacementDistOffset", nearPlacementDistOffset);
    io.Float(u"farPlacementDistOffset", farPlacementDistOffset);
    io.Uint(u"spawnCount", spawnCount);
    io.Value(u"swapMineType", swapMineType);
    if (io.Reading()) {
        CheckValues();
    }
}

void IPlanetModuleDefinition::CheckValues() const {
    CheckAssert(farPlacementDistOffset >= 0.0f, "m_farPlacementDistOffset >= 0.f");
    CheckAssert(nearPlacementDistOffset >= 0.0f, "m_nearPlacementDistOffset >= 0.f");
    CheckAssert(static_cast<std::int32_t>(spawnCount) > 0, "spawnCount > 0");
    CheckAssert(spawnCount == 1 || resourceExtractionType == Resource::Invalid,
                "spawnCount == 1 || m_resourceExtractionType == Resource::Invalid");
}

} // namespace Vorn
