#include "gs/research/researchboolmodifiertable.h"

namespace Vorn {

namespace {
consteval std::int32_t Row(std::u16string_view text) {
    return RowNumber<ResearchBoolModifierType>(text);
}
} // namespace

void ResearchBoolModifierTable::Fields(FieldIo& io) {
    io.Enum(u"modifierType", modifierType);
    switch (static_cast<std::int32_t>(modifierType)) {
    case Row(u"PlanetIsColonizable"):
        io.Enum(u"linkedPlanetType", linkedPlanetType);
        break;
    case Row(u"UnlockPact"):
        io.Enum(u"allianceType", allianceType);
        io.Value(u"pactUnlockEntityDefName", pactUnlockEntityDefName);
        break;
    case Row(u"SetFaction"):
        io.String(u"factionNameID", factionNameID);
        break;
    case Row(u"UnlockResearch"):
        io.Value(u"researchUnlockDefName", researchUnlockDefName);
        break;
    case Row(u"ApplyBuffToAllOwnedShipsWhenOwnedPlanetFalls"):
    case Row(u"ApplyBuffToPlanetAfterColonization"):
    case Row(u"ApplyBuffToPlanetAfterPlayerDestroys"):
    case Row(u"ApplyBuffToOwnedPlanetAfterLastEnemyShipLeavesOrDies"):
    case Row(u"ApplyBuffToShipsAfterHyperspace"):
    case Row(u"ApplyBuffToPlanetsAfterScuttle"):
        io.Value(u"buffToApply", buffToApply);
        break;
    default:
        break;
    }
}

bool ResearchBoolModifierTable::IsVictory() const {
    return static_cast<std::int32_t>(modifierType) == Row(u"ResearchVictory");
}

} // namespace Vorn
