#pragma once

#include "engine/archive/record.h"
#include "gs/entity/support/price.h"

namespace Vorn {

enum class QuestType : std::int32_t { Invalid = -1 };

inline constexpr std::u16string_view kQuestTypeRows[] = {
    u"BombAnyPlanet",          u"GiveResources",          u"KillShips", u"KillCapitalShips",
    u"KillCivilianStructures", u"KillTacticalStructures", u"SendEnvoy"};
template <>
inline constexpr EnumTable kEnumTable<QuestType> = MakeTable("QuestType", kQuestTypeRows);

// What a minor power demands of a player, and the reward. Numbers that make no sense are reported and kept.
struct IQuestDefinition : Record {
    static constexpr int kMaxConstraints = 8;

    // The values of receivers and targets that a quest can be bound to.
    enum class TargetConstraint : std::int32_t { Invalid = -1 };

    // The range of such a value. A range without 0 is reported and kept.
    struct MinMax : Record {
        TargetConstraint type = TargetConstraint::Invalid;
        float min = 0.0f;
        float max = 0.0f;

        void Fields(FieldIo& io) override;
    };

    FixedString<256> titleStringId;
    FixedString<256> infoCardDescStringId;
    QuestType questType = QuestType::Invalid;
    float duration = 0.0f;
    float relationshipDecayRate = 0.0f;
    float happinessChangeForSuccess = 0.0f;
    float happinessChangeForFailure = 0.0f;
    Price reward;
    Price priceDemanded;
    float valueToKill = 0.0f;
    FixedVector<MinMax, kMaxConstraints> receiverConstraints;
    FixedVector<MinMax, kMaxConstraints> targetConstraints;
    float weight = 0.0f;

    void Fields(FieldIo& io) override;

private:
    void CheckValues() const;
};

inline constexpr std::u16string_view kQuestTargetConstraintRows[] = {
    u"TargetHappiness",     u"TargetCreditIncome",  u"TargetMetalIncome", u"TargetCrystalIncome",
    u"TargetTacticalSlots", u"TargetCivilianSlots", u"TargetShipSlots",   u"TargetDist"};
template <>
inline constexpr EnumTable kEnumTable<IQuestDefinition::TargetConstraint> =
    MakeTable("IQuestDefinition::TargetConstraint", kQuestTargetConstraintRows);

} // namespace Vorn
