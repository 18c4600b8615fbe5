#include "gs/research/iresearchsubjectdefinition.h"

#include <algorithm>

namespace Vorn {

namespace {
constexpr std::int32_t kTierCount = 8;

// Tested as a signed number: a huge one counts as negative.
std::int32_t Signed(std::uint32_t value) {
    return static_cast<std::int32_t>(value);
}
} // namespace

void IResearchSubjectDefinition::ResearchWindowLocation::Fields(FieldIo& io) {
    io.Uint(u"block", block);
    io.Point(u"pos", pos);
}

void IResearchSubjectDefinition::Fields(FieldIo& io) {
    io.String(u"NameStringID", nameStringID, NameKind::StringId);
    io.String(u"DescriptionStringID", descriptionStringID, NameKind::StringId);
    io.Record(u"researchWindowLocation", researchWindowLocation);
    io.Enum(u"ResearchField", researchField);
    io.Record(u"Prerequisites", prerequisites);
    io.Uint(u"MinimumArtifactLevel", minimumArtifactLevel);
    io.Float(u"BaseUpgradeTime", baseUpgradeTime);
    io.Float(u"PerLevelUpgradeTime", perLevelUpgradeTime);
    io.Record(u"BaseCost", baseCost);
    io.Record(u"PerLevelCostIncrease", perLevelCostIncrease);
    io.Uint(u"Tier", tier);
    io.Bool(u"onlyWorksIfTierLabsExist", onlyWorksIfTierLabsExist);
    io.Uint(u"MaxNumResearchLevels", maxNumResearchLevels);
    io.Float(u"priority", priority);
    ModifierFields(io);
    io.Value(u"artifactPicture", artifactPicture);
    io.Value(u"uniqueOverlayBrush", uniqueOverlayBrush);
    io.Int(u"dlcId", dlcId);
    if (io.Reading()) {
        CheckValues();
    }
}

void IResearchSubjectDefinition::ModifierFields(FieldIo& io) {
    const auto entry = io.Records(u"researchModifier");
    io.ReservedList(u"researchBoolModifiers", boolModifiers, entry);
    if (io.Reading()) {
        isVictory = std::ranges::any_of(boolModifiers, &ResearchBoolModifierTable::IsVictory);
    }
    io.ReservedList(u"researchFloatModifiers", floatModifiers, entry);
}

void IResearchSubjectDefinition::CheckValues() const {
    CheckAssert(Signed(tier) < kTierCount, "m_Tier < GameConstants::MAX_NUM_RESEARCH_TIERS");
    switch (researchField) {
    case ResearchField::Artifact:
        CheckAssert(Signed(minimumArtifactLevel) >= 0, "m_minimumArtifactLevel >= 0");
        CheckWithoutLevels();
        break;
    case ResearchField::PactBonus:
        CheckWithoutLevels();
        break;
    case ResearchField::ResearchUnlock:
        break;
    default:
        CheckAssert(Signed(tier) == researchWindowLocation.pos.x, "m_Tier == researchWindowLocation.pos.m_X");
        break;
    }
    CheckAssert(boolModifiers.Size() <= kEnumTable<ResearchBoolModifierType>.rowCount,
                "boolModifierTables.Size() <= ResearchBoolModifierType::EnumSize");
}

// Subjects that are found or granted as a whole have one level and no prerequisites.
void IResearchSubjectDefinition::CheckWithoutLevels() const {
    CheckAssert(maxNumResearchLevels == 1, "m_MaxNumResearchLevels == 1");
    CheckAssert(prerequisites.prerequisites.Size() == 0, "m_Prerequisites.Size() == 0");
}

} // namespace Vorn
