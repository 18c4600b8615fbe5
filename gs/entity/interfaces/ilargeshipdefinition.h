#pragma once

#include "engine/archive/record.h"
#include "engine/window/brushref.h"
#include "gs/entity/support/experiencelevelfloattable.h"
#include "gs/entity/support/price.h"
#include "gs/entity/support/researchenums.h"
#include "gs/entity/support/researchprerequisites.h"

namespace Vorn {

// What capital ships and titans have in common: what one costs and how it grows with experience.
struct ILargeShipDefinition : Record {
    BrushRef mainViewIcon;
    Price basePrice;
    float slotCount = 0.0f;
    float buildTime = 0.0f;
    ExperienceLevelFloatTable maxHullPoints;
    ExperienceLevelFloatTable maxShieldPoints;
    ExperienceLevelFloatTable hullPointRestoreRate;
    ExperienceLevelFloatTable shieldPointRestoreRate;
    ExperienceLevelFloatTable armorPointsFromExperience;
    ExperienceLevelFloatTable maxMitigation;
    ExperienceLevelFloatTable maxAntiMatter;
    ExperienceLevelFloatTable antiMatterRestoreRate;
    ExperienceLevelFloatTable cultureProtectRate;
    FixedString<256> nameStringID;
    FixedString<256> descriptionStringID;
    BrushRef picture;
    ResearchPrerequisites prerequisites;

    void Fields(FieldIo& io) override;
};

} // namespace Vorn
