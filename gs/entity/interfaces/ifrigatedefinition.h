#pragma once

#include "engine/archive/record.h"
#include "engine/window/brushref.h"
#include "gs/entity/support/bufflevelfloattable.h"
#include "gs/entity/support/price.h"
#include "gs/entity/support/researchenums.h"
#include "gs/entity/support/researchprerequisites.h"

namespace Vorn {

enum class FrigateRoleType : std::int32_t { Invalid = -1 };

inline constexpr std::u16string_view kFrigateRoleTypeRows[] = {u"Scout",
                                                               u"Light",
                                                               u"Lrm",
                                                               u"AntiFighter",
                                                               u"AntiModule",
                                                               u"Carrier",
                                                               u"Heavy",
                                                               u"Support",
                                                               u"Colony",
                                                               u"Siege",
                                                               u"ModuleConstructor",
                                                               u"Cargo",
                                                               u"Raider",
                                                               u"StarBaseConstructor",
                                                               u"AntiMine",
                                                               u"ResourceCapturer",
                                                               u"MineLayer",
                                                               u"Envoy",
                                                               u"Corvette",
                                                               u"AbilityCreated",
                                                               u"MinorFactionCapturer"};
template <>
inline constexpr EnumTable kEnumTable<FrigateRoleType> = MakeTable("FrigateRoleType", kFrigateRoleTypeRows);

// What a frigate is for, what it costs and how strong it is, at each level or once for all. Of more than three roles
// the first three are kept, and each further one fires a check.
struct IFrigateDefinition : Record {
    FixedVector<FrigateRoleType, 3> frigateRoleTypes;
    PlayerEntityCountType statCountType = PlayerEntityCountType::Invalid;
    BrushRef mainViewIcon;
    BrushRef picture;
    FixedString<256> nameStringID;
    FixedString<256> descriptionStringID;
    FixedString<256> counterDescriptionStringID;
    Price basePrice;
    float slotCount = 0.0f;
    float buildTime = 0.0f;
    Bool hasLevels;
    BuffLevelFloatTable experiencePointsForDestroying;
    BuffLevelFloatTable maxHullPoints;
    BuffLevelFloatTable maxShieldPoints;
    BuffLevelFloatTable hullPointRestoreRate;
    BuffLevelFloatTable shieldPointRestoreRate;
    BuffLevelFloatTable baseArmorPoints;
    BuffLevelFloatTable maxMitigation;
    // 0 in files older than kRelationshipChangeRateVersion.
    BuffLevelFloatTable relationshipChangeRate;
    ResearchPrerequisites prerequisites;

    void Fields(FieldIo& io) override;
};

} // namespace Vorn
