#include "gs/entity/interfaces/iquestdefinition.h"

namespace Vorn {

void IQuestDefinition::MinMax::Fields(FieldIo& io) {
    io.Enum(u"type", type);
    io.Float(u"min", min);
    io.Float(u"max", max);
    if (io.Reading()) {
        CheckAssert(min <= 0.0f && 0.0f <= max, "Math::IsBetweenInclusive(min, 0.f, max)");
    }
}

void IQuestDefinition::Fields(FieldIo& io) {
    io.String(u"titleStringId", titleStringId, NameKind::StringId);
    io.String(u"infoCardDescStringId", infoCardDescStringId, NameKind::StringId);
    io.Enum(u"questType", questType);
    io.Float(u"duration", duration);
    io.Float(u"relationshipDecayRate", relationshipDecayRate);
    io.Float(u"happinessChangeForSuccess", happinessChangeForSuccess);
    io.Float(u"happinessChangeForFailure", happinessChangeForFailure);
    io.Record(u"reward", reward);
    io.Record(u"priceDemanded", priceDemanded);
    io.Float(u"valueToKill", valueToKill);
    io.BoundedList(u"numReceiverConstraints", receiverConstraints, io.Records(u"ReceiverConstraint"));
    io.BoundedList(u"numTargetConstraints", targetConstraints, io.Records(u"TargetConstraint"));
    io.Float(u"weight", weight);
    if (io.Reading()) {
        CheckValues();
    }
}

void IQuestDefinition::CheckValues() const {
    CheckAssert(happinessChangeForSuccess > 0.0f, "happinessChangeForSuccess > 0.f");
    CheckAssert(happinessChangeForFailure < 0.0f, "happinessChangeForFailure < 0.f");
    CheckAssert(duration > 0.0f, "duration > 0.f");
    CheckAssert(valueToKill >= 0.0f, "valueToKill >= 0.f");
    int resourceDemandedCount = 0;
    for (const float amount : {priceDemanded.credits, priceDemanded.metal, priceDemanded.crystal}) {
        resourceDemandedCount += amount > 0.0f ? 1 : 0;
    }
    CheckAssert(resourceDemandedCount <= 1, "resourceDemandedCount <= 1");
}

} // namespace Vorn
