#pragma once

#include "gs/entity/support/buffinstantaction.h"
#include "gs/entity/support/researchenums.h"
#include "gs/entity/support/researchprerequisites.h"
#include "gs/entity/support/upgradeenums.h"

namespace Vorn {

// The numbers of these are the rows of the tables in iabilitydef.cpp.
enum class LevelSourceType : std::int32_t { Invalid = -1 };
enum class AIUseTime : std::int32_t { Invalid = -1 };
enum class AIUseTargetCondition : std::int32_t { Invalid = -1 };
enum class UseCostType : std::int32_t { Invalid = -1 };

// What an ability does, where its levels come from, when an artificial player uses it and what its use costs. Each of
// these selections has the fields of its own. Settings that contradict each other are reported and kept.
struct IAbilityDef : Record {
    BuffInstantAction buffApplyAction;
    Bool needsToFaceTarget;
    Bool canCollideWithTarget;
    Bool moveThruTarget;
    Bool isUltimateAbility;
    std::uint32_t maxNumLevels = 0;

    LevelSourceType levelSourceType = LevelSourceType::Invalid;
    BuffLevelFloatTable minExperienceLevelRequired;
    EntityDefNameOf<EntityType::ResearchSubject> baseSourceResearchSubject;
    EntityDefNameOf<EntityType::ResearchSubject> improveSourceResearchSubject;
    ResearchFloatModifierType sourceResearchFloatModifierType = ResearchFloatModifierType::Invalid;
    StarBaseUpgradePropertyType sourceStarBaseProperty = StarBaseUpgradePropertyType::Invalid;
    TitanUpgradePropertyType sourceTitanProperty = TitanUpgradePropertyType::Invalid;

    AIUseTime aiUseTime = AIUseTime::Invalid;
    BuffLevelFloatTable onlyAutoCastWhenTotalHullDamageExceedsAmount;
    BuffLevelFloatTable onlyAutoCastWhenTargetCountExceedsAmount;
    EntityDefNameOf<EntityType::Buff> useTimeBuffType;
    WeaponBank onlyAutoCastWhenTargetsInBank = WeaponBank::Invalid;
    float thresholdDistance = 0.0f;
    float onlyAutoCastWhenDebrisWithinRange = 0.0f;

    AIUseTargetCondition aiUseTargetCondition = AIUseTargetCondition::Invalid;
    BuffLevelFloatTable onlyAutoCastWhenTargetHullDamageExceedsAmount;
    BuffLevelFloatTable onlyAutoCastWhenTargetShieldDamageExceedsAmount;
    BuffLevelFloatTable onlyAutoCastWhenTargetAntimatterExceedsAmount;
    EntityDefNameOf<EntityType::Buff> targetBuffType;

    Bool isAutoCastAvailable;
    Bool isAutoCastOnByDefault;
    Bool pickRandomPlanetToExploreForAutoCastTarget;
    Bool ignoreNonCombatShipsForAutoCastTarget;
    float onlyAutoCastWhenDamageTakenExceedsPerc = 0.0f;

    UseCostType useCostType = UseCostType::Invalid;
    BuffLevelFloatTable antiMatterCost;
    BuffLevelFloatTable hullCost;
    BuffLevelFloatTable creditCost;
    BuffLevelFloatTable metalCost;
    BuffLevelFloatTable crystalCost;
    BuffLevelFloatTable requiredShipSlots;
    BuffLevelFloatTable requiredCapitalShipSlots;
    BuffLevelFloatTable cooldownTime;
    UnitSoundType orderAcknowledgementType = UnitSoundType::Invalid;

    ResearchPrerequisites researchPrerequisites;
    FixedString<256> nameStringID;
    FixedString<256> descStringID;

    void Fields(FieldIo& io) override;

private:
    void SelectionFields(FieldIo& io);
    void CheckAction() const;
    void CheckLevels() const;
    void CheckAutoCast() const;
    void CheckNoAutoCastConditions() const;
};

} // namespace Vorn
