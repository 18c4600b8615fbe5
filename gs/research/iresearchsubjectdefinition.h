#pragma once

#include "engine/window/brushref.h"
#include "gs/entity/support/price.h"
#include "gs/entity/support/researchprerequisites.h"
#include "gs/research/researchboolmodifiertable.h"
#include "gs/research/researchfloatmodifiertable.h"

namespace Vorn {

// What a subject of research costs, needs and changes, and its place in the research window. A place, a tier or a
// number of levels that do not suit its field are reported and kept.
struct IResearchSubjectDefinition : Record {
    // A block of the window and the column and row in it.
    struct ResearchWindowLocation : Record {
        std::uint32_t block = 0;
        Point pos;

        void Fields(FieldIo& io) override;
    };

    FixedString<256> nameStringID;
    FixedString<256> descriptionStringID;
    ResearchWindowLocation researchWindowLocation;
    ResearchField researchField = ResearchField::Invalid;
    ResearchPrerequisites prerequisites;
    std::uint32_t minimumArtifactLevel = 0;
    float baseUpgradeTime = 0.0f;
    float perLevelUpgradeTime = 0.0f;
    Price baseCost;
    Price perLevelCostIncrease;
    std::uint32_t tier = 0;
    Bool onlyWorksIfTierLabsExist;
    std::uint32_t maxNumResearchLevels = 0;
    float priority = 0.0f;
    DynamicVector<ResearchBoolModifierTable> boolModifiers;
    DynamicVector<ResearchFloatModifierTable> floatModifiers;
    BrushRef artifactPicture;
    BrushRef uniqueOverlayBrush;
    std::int32_t dlcId = 0;

    // Whether the subject wins the game: set by reading from the Bool modifiers, not stored.
    bool isVictory = false;

    void Fields(FieldIo& io) override;

private:
    void ModifierFields(FieldIo& io);
    void CheckValues() const;
    void CheckWithoutLevels() const;
};

} // namespace Vorn
