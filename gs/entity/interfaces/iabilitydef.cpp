#include "gs/entity/interfaces/iabilitydef.h"

#include "engine/archive/typerows.h"
#include "gs/contentversions.h"
#include "gs/entity/support/price.h"

#include <algorithm>

namespace Vorn {

namespace {

using Step = FieldStep<IAbilityDef>;
template <int kMaxSteps>
using Row = TypeRow<IAbilityDef, kMaxSteps>;

constexpr Step kMinExperienceLevelRequired = [](FieldIo& io, IAbilityDef& a) {
    io.Record(u"minExperienceLevelRequired", a.minExperienceLevelRequired);
};
constexpr Step kBaseSourceResearchSubject = [](FieldIo& io, IAbilityDef& a) {
    io.Value(u"baseSourceResearchSubject", a.baseSourceResearchSubject);
};
constexpr Step kImproveSourceResearchSubject = [](FieldIo& io, IAbilityDef& a) {
    io.Value(u"improveSourceResearchSubject", a.improveSourceResearchSubject);
};
constexpr Step kSourceResearchFloatModifierType = [](FieldIo& io, IAbilityDef& a) {
    io.Enum(u"sourceResearchFloatModifierType", a.sourceResearchFloatModifierType);
};
constexpr Step kStarBaseProperty = [](FieldIo& io, IAbilityDef& a) {
    io.Enum(u"sourcePropertyType", a.sourceStarBaseProperty);
};
constexpr Step kTitanProperty = [](FieldIo& io, IAbilityDef& a) {
    io.Enum(u"sourcePropertyType", a.sourceTitanProperty);
};

constexpr Row<2> kLevelSourceTypeRows[] = {
    {u"Intrinsic", {kMinExperienceLevelRequired}},
    {u"FixedLevel0"},
    {u"ResearchWithBase", {kBaseSourceResearchSubject, kImproveSourceResearchSubject}},
    {u"ResearchWithoutBase", {kImproveSourceResearchSubject}},
    {u"ResearchStartsAt0", {kImproveSourceResearchSubject}},
    {u"ResearchFloatModifierValue", {kSourceResearchFloatModifierType}},
    {u"StarBaseUpgradeLevel", {kStarBaseProperty}},
    {u"TitanUpgradeLevel", {kTitanProperty}},
};

constexpr Step kOnlyAutoCastWhenTotalHullDamageExceedsAmount = [](FieldIo& io, IAbilityDef& a) {
    io.Record(u"onlyAutoCastWhenTotalHullDamageExceedsAmount", a.onlyAutoCastWhenTotalHullDamageExceedsAmount);
};
constexpr Step kOnlyAutoCastWhenTargetCountExceedsAmount = [](FieldIo& io, IAbilityDef& a) {
    io.Record(u"onlyAutoCastWhenTargetCountExceedsAmount", a.onlyAutoCastWhenTargetCountExceedsAmount);
};
constexpr Step kUseTimeBuffType = [](FieldIo& io, IAbilityDef& a) { io.Value(u"buffType", a.useTimeBuffType); };
constexpr Step kOnlyAutoCastWhenTargetsInBank = [](FieldIo& io, IAbilityDef& a) {
    io.Enum(u"onlyAutoCastWhenTargetsInBank", a.onlyAutoCastWhenTargetsInBank);
};
constexpr Step kThresholdDistance = [](FieldIo& io, IAbilityDef& a) {
    io.Float(u"thresholdDistance", a.thresholdDistance);
};
constexpr Step kOnlyAutoCastWhenDebrisWithinRange = [](FieldIo& io, IAbilityDef& a) {
    io.Float(u"onlyAutoCastWhenDebrisWithinRange", a.onlyAutoCastWhenDebrisWithinRange);
};

constexpr Row<2> kAIUseTimeRows[] = {
    {u"NotInCombat"},
    {u"OnlyInCombat"},
    {u"Anytime"},
    {u"HomingMineDeploymentTime"},
    {u"OnlyWithNoOrder"},
    {u"OnlyWithNoOrderOrAutoAttack"},
    {u"OnlyWithNoOrderOrAutoAttackButNotIfTargettingMine"},
    {u"OnlyWhenTakingDamage"},
    {u"OnlyWhenHullDamageExceeds", {kOnlyAutoCastWhenTotalHullDamageExceedsAmount}},
    {u"OnlyWhenBombing"},
    {u"OnlyWhenAttackTargetIsInFiringSolutionAndHasAttackOrder"},
    {u"OnlyWhenOrbitingEnemyPlanet"},
    {u"OnlyWhenOrbitingEnemyOrAlliedPlanet"},
    {u"OnlyWhenManyTargetsInCombatDoNotHaveBuff", {kOnlyAutoCastWhenTargetCountExceedsAmount, kUseTimeBuffType}},
    {u"OnlyWhenManyTargetsInRange", {kOnlyAutoCastWhenTargetCountExceedsAmount}},
    {u"OnlyWhenManyTargetsInRangeOfBank", {kOnlyAutoCastWhenTargetCountExceedsAmount, kOnlyAutoCastWhenTargetsInBank}},
    {u"OnlyWhenManyTargetsHaveShieldDamage"},
    {u"OnlyWhenManyTargetsHaveHullDamage", {kOnlyAutoCastWhenTotalHullDamageExceedsAmount}},
    {u"OnlyWhenManyTargetsHyperspacingTowardsMyGravityWell"},
    {u"OnlyWhenMovingThresholdDistance", {kThresholdDistance}},
    {u"OnlyWhenOrbitingHomeworld"},
    {u"OnlyWhenEnemyFleetWillPrevail"},
    {u"OnlyWhenDisabled"},
    {u"OnlyWhenAboutToDie"},
    {u"OnlyWhenDebrisWithinRange", {kOnlyAutoCastWhenDebrisWithinRange}},
    {u"NoEnemyShipsInGravityWell"},
    {u"OnlyIfOwnTitan"},
};

constexpr Step kOnlyAutoCastWhenTargetHullDamageExceedsAmount = [](FieldIo& io, IAbilityDef& a) {
    io.Record(u"onlyAutoCastWhenTargetHullDamageExceedsAmount", a.onlyAutoCastWhenTargetHullDamageExceedsAmount);
};
constexpr Step kOnlyAutoCastWhenTargetShieldDamageExceedsAmount = [](FieldIo& io, IAbilityDef& a) {
    io.Record(u"onlyAutoCastWhenTargetShieldDamageExceedsAmount", a.onlyAutoCastWhenTargetShieldDamageExceedsAmount);
};
constexpr Step kOnlyAutoCastWhenTargetAntimatterExceedsAmount = [](FieldIo& io, IAbilityDef& a) {
    io.Record(u"onlyAutoCastWhenTargetAntimatterExceedsAmount", a.onlyAutoCastWhenTargetAntimatterExceedsAmount);
};
constexpr Step kTargetBuffType = [](FieldIo& io, IAbilityDef& a) { io.Value(u"buffType", a.targetBuffType); };

constexpr Row<1> kAIUseTargetConditionRows[] = {
    {u"Any"},
    {u"HullDamageExceedsAmount", {kOnlyAutoCastWhenTargetHullDamageExceedsAmount}},
    {u"ShieldDamageExceedsAmount", {kOnlyAutoCastWhenTargetShieldDamageExceedsAmount}},
    {u"IsDifferentRoleType"},
    {u"IsNotAbilityDisabled"},
    {u"IsNotWeaponDisabled"},
    {u"HasAbilityInCooldown"},
    {u"IsCapitalShipOrStarbase"},
    {u"IsCapitalShipOrStarbaseOrTitan"},
    {u"AntimatterExceedsAmount", {kOnlyAutoCastWhenTargetAntimatterExceedsAmount}},
    {u"HasNoWeapons"},
    {u"IsBoarded"},
    {u"HasBuff", {kTargetBuffType}},
};

constexpr Step kAntiMatterCost = [](FieldIo& io, IAbilityDef& a) { io.Record(u"antiMatterCost", a.antiMatterCost); };
constexpr Step kHullCost = [](FieldIo& io, IAbilityDef& a) { io.Record(u"hullCost", a.hullCost); };
constexpr Step kResourceCosts = [](FieldIo& io, IAbilityDef& a) {
    if (io.Before(kResourceCostLevelsVersion)) {
        Price price;
        io.Record(u"resourceCost", price);
        std::ranges::fill(a.creditCost.values, price.credits);
        std::ranges::fill(a.metalCost.values, price.metal);
        std::ranges::fill(a.crystalCost.values, price.crystal);
    } else {
        io.Record(u"creditCost", a.creditCost);
        io.Record(u"metalCost", a.metalCost);
        io.Record(u"crystalCost", a.crystalCost);
    }
};
constexpr Step kRequiredShipSlots = [](FieldIo& io, IAbilityDef& a) {
    io.Record(u"requiredShipSlots", a.requiredShipSlots);
};
constexpr Step kRequiredCapitalShipSlots = [](FieldIo& io, IAbilityDef& a) {
    io.Record(u"requiredCapitalShipSlots", a.requiredCapitalShipSlots);
};
constexpr Step kCooldownTime = [](FieldIo& io, IAbilityDef& a) { io.Record(u"cooldownTime", a.cooldownTime); };
constexpr Step kOrderAcknowledgementType = [](FieldIo& io, IAbilityDef& a) {
    io.Enum(u"orderAcknowledgementType", a.orderAcknowledgementType);
};

constexpr Row<5> kUseCostTypeRows[] = {
    {u"AntiMatter", {kAntiMatterCost, kCooldownTime, kOrderAcknowledgementType}},
    {u"AntiMatterAndNotBeAtStar", {kAntiMatterCost, kCooldownTime, kOrderAcknowledgementType}},
    {u"HullAndAntimatter", {kHullCost, kAntiMatterCost, kCooldownTime, kOrderAcknowledgementType}},
    {u"None", {kCooldownTime, kOrderAcknowledgementType}},
    {u"Passive"},
    {u"Resources", {kResourceCosts, kCooldownTime, kOrderAcknowledgementType}},
    {u"ResourcesAndMustHaveTitan", {kResourceCosts, kCooldownTime, kOrderAcknowledgementType}},
    {u"ResourcesAndMustHaveCapitalCrew",
     {kResourceCosts, kRequiredShipSlots, kRequiredCapitalShipSlots, kCooldownTime, kOrderAcknowledgementType}},
    {u"ResourcesAndMustHaveShipSlots", {kResourceCosts, kRequiredShipSlots, kCooldownTime, kOrderAcknowledgementType}},
};

constexpr auto kLevelSourceTypeTexts = TextsOf(kLevelSourceTypeRows);
constexpr auto kAIUseTimeTexts = TextsOf(kAIUseTimeRows);
constexpr auto kAIUseTargetConditionTexts = TextsOf(kAIUseTargetConditionRows);
constexpr auto kUseCostTypeTexts = TextsOf(kUseCostTypeRows);

constexpr EnumTable kLevelSourceTypeTable = MakeTable("LevelSourceType", kLevelSourceTypeTexts);
constexpr EnumTable kAIUseTimeTable = MakeTable("AIUseTime", kAIUseTimeTexts);
constexpr EnumTable kAIUseTargetConditionTable = MakeTable("AIUseTargetCondition", kAIUseTargetConditionTexts);
constexpr EnumTable kUseCostTypeTable = MakeTable("UseCostType", kUseCostTypeTexts);

constexpr LevelSourceType kResearchWithBase{RowNumber(kLevelSourceTypeTable, u"ResearchWithBase")};
constexpr UseCostType kPassive{RowNumber(kUseCostTypeTable, u"Passive")};
} // namespace

void IAbilityDef::Fields(FieldIo& io) {
    io.Block(buffApplyAction);
    io.Bool(u"needsToFaceTarget", needsToFaceTarget);
    io.Bool(u"canCollideWithTarget", canCollideWithTarget);
    io.Bool(u"moveThruTarget", moveThruTarget);
    io.Bool(u"isUltimateAbility", isUltimateAbility);
    io.Uint(u"maxNumLevels", maxNumLevels);
    SelectionFields(io);
    io.Record(u"researchPrerequisites", researchPrerequisites);
    io.String(u"nameStringID", nameStringID, NameKind::StringId);
    io.String(u"descStringID", descStringID, NameKind::StringId);
    if (io.Reading()) {
        CheckAction();
        CheckLevels();
        CheckAutoCast();
    }
}

void IAbilityDef::SelectionFields(FieldIo& io) {
    io.Enum(u"levelSourceType", levelSourceType, kLevelSourceTypeTable);
    RowFields(io, kLevelSourceTypeRows, levelSourceType, *this);
    io.Enum(u"aiUseTime", aiUseTime, kAIUseTimeTable);
    RowFields(io, kAIUseTimeRows, aiUseTime, *this);
    io.Enum(u"aiUseTargetCondition", aiUseTargetCondition, kAIUseTargetConditionTable);
    RowFields(io, kAIUseTargetConditionRows, aiUseTargetCondition, *this);
    io.Bool(u"isAutoCastAvailable", isAutoCastAvailable);
    io.Bool(u"isAutoCastOnByDefault", isAutoCastOnByDefault);
    io.Bool(u"pickRandomPlanetToExploreForAutoCastTarget", pickRandomPlanetToExploreForAutoCastTarget);
    io.Bool(u"ignoreNonCombatShipsForAutoCastTarget", ignoreNonCombatShipsForAutoCastTarget);
    io.Float(u"onlyAutoCastWhenDamageTakenExceedsPerc", onlyAutoCastWhenDamageTakenExceedsPerc);
    io.Enum(u"useCostType", useCostType, kUseCostTypeTable);
    CheckAssert(useCostType != UseCostType::Invalid, "false");
    RowFields(io, kUseCostTypeRows, useCostType, *this);
}

void IAbilityDef::CheckAction() const {
    CheckAssert(buffApplyAction.instantActionTriggerType == InstantActionTriggerType::AlwaysPerform,
                "m_buffApplyAction.instantActionTriggerType == InstantActionTriggerType::AlwaysPerform");
    if (needsToFaceTarget || moveThruTarget) {
        CheckAssert(buffApplyAction.NeedsSingleTarget(), "m_buffApplyAction.NeedsSingleTarget()");
    }
}

void IAbilityDef::CheckLevels() const {
    // Tested as a signed number: a huge one counts as negative.
    const int levelCount = std::min(static_cast<std::int32_t>(maxNumLevels), BuffLevelFloatTable::kLevelCount);
    for (int i = 1; i < levelCount; ++i) {
        CheckAssert(minExperienceLevelRequired.GetValueAtLevel(i - 1) <= minExperienceLevelRequired.GetValueAtLevel(i),
                    "m_minExperienceLevelRequired.GetValueAtLevel(i - 1) <= "
                    "m_minExperienceLevelRequired.GetValueAtLevel(i)");
    }
    if (levelSourceType == kResearchWithBase) {
        CheckAssert(researchPrerequisites.HasSubject(baseSourceResearchSubject),
                    "m_researchPrerequisites.HasSubject(m_baseSourceResearchSubject)");
    }
}

void IAbilityDef::CheckAutoCast() const {
    if (isAutoCastAvailable) {
        CheckAssert(useCostType != kPassive, "useCostType != UseCostType::Passive");
        CheckAssert(aiUseTime != AIUseTime::Invalid, "m_aiUseTime != AIUseTime::Invalid");
        CheckAssert(aiUseTargetCondition != AIUseTargetCondition::Invalid,
                    "aiUseTargetCondition != AIUseTargetCondition::Invalid");
    } else {
        CheckNoAutoCastConditions();
    }
    if (useCostType == kPassive) {
        CheckAssert(!isAutoCastAvailable, "!m_isAutoCastAvailable");
        CheckNoAutoCastConditions();
    }
}

void IAbilityDef::CheckNoAutoCastConditions() const {
    CheckAssert(aiUseTime == AIUseTime::Invalid, "m_aiUseTime == AIUseTime::Invalid");
    CheckAssert(aiUseTargetCondition == AIUseTargetCondition::Invalid,
                "aiUseTargetCondition == AIUseTargetCondition::Invalid");
    CheckAssert(!isAutoCastOnByDefault, "!m_isAutoCastOnByDefault");
}

} // namespace Vorn
