#include "gs/entity/entitytypes.h"

#include "gs/entity/types/abilitydef.h"
#include "gs/entity/types/buffdef.h"
#include "gs/entity/types/cannonshelldef.h"
#include "gs/entity/types/fleetdef.h"
#include "gs/entity/types/formationdef.h"
#include "gs/entity/types/missiondefs.h"
#include "gs/entity/types/questdef.h"
#include "gs/entity/types/researchsubjectdef.h"
#include "gs/entity/types/triggerdef.h"
#include "gs/entity/types/weapondef.h"

#include <array>

namespace Vorn {

namespace {

template <class Definition>
std::unique_ptr<EntityDef> Make() {
    return std::make_unique<Definition>();
}

// The order is kept for good: other tables number the types by it.
constexpr EntityTypeRow kEntityTypeRows[kEntityTypeCount] = {
    {u"Ability", Make<AbilityDef>},
    {u"Buff", Make<BuffDef>},
    {u"EmpireWindowNode", nullptr},
    {u"Fighter", nullptr},
    {u"Squad", nullptr},
    {u"Debris", nullptr},
    {u"Weapon", Make<WeaponDef>},
    {u"CannonShell", Make<CannonShellDef>},
    {u"CapitalShip", nullptr},
    {u"Cosmetic", nullptr},
    {u"EntryVehicle", nullptr},
    {u"Fleet", Make<FleetDef>},
    {u"Formation", Make<FormationDef>},
    {u"Frigate", nullptr},
    {u"MissionAttackPlanet", Make<Mission_AttackPlanetDef>},
    {u"MissionCaptureResources", Make<Mission_CaptureResourcesDef>},
    {u"MissionColonize", Make<Mission_ColonizeDef>},
    {u"MissionDefendFlagship", Make<Mission_DefendFlagshipDef>},
    {u"MissionBuildStarBase", Make<Mission_BuildStarBaseDef>},
    {u"MissionBuildMines", Make<Mission_BuildMinesDef>},
    {u"MissionExplore", Make<Mission_ExploreDef>},
    {u"MissionRaid", Make<Mission_RaidDef>},
    {u"PipCloud", nullptr},
    {u"Planet", nullptr},
    {u"PlanetBonus", nullptr},
    {u"PlanetConnection", nullptr},
    {u"PlanetModuleHangarDefense", nullptr},
    {u"PlanetModuleShipFactory", nullptr},
    {u"PlanetModuleStandard", nullptr},
    {u"PlanetModuleTradePort", nullptr},
    {u"PlanetModuleRefinery", nullptr},
    {u"PlanetModuleSpaceMine", nullptr},
    {u"PlanetModuleUserAbilityModule", nullptr},
    {u"PlanetModuleWeaponDefense", nullptr},
    {u"Player", nullptr},
    {u"Quest", Make<QuestDef>},
    {u"ResearchSubject", Make<ResearchSubjectDef>},
    {u"ResourceAsteroid", nullptr},
    {u"SpaceMine", nullptr},
    {u"Star", nullptr},
    {u"StarBase", nullptr},
    {u"StarBaseUpgrade", nullptr},
    {u"Titan", nullptr},
    {u"TitanUpgrade", nullptr},
    {u"MissionFosterRelationships", Make<Mission_FosterRelationshipsDef>},
    {u"Trigger", Make<TriggerDef>},
    {u"MissionCaptureMinorFaction", Make<Mission_CaptureMinorFactionDef>},
};

constexpr auto kEntityTypeTexts = [] {
    std::array<std::u16string_view, kEntityTypeCount> texts{};
    for (std::size_t i = 0; i < texts.size(); ++i) {
        texts[i] = kEntityTypeRows[i].text;
    }
    return texts;
}();

} // namespace

const EnumTable kEntityTypeTable = {"EntityType", kEntityTypeTexts.data(), kEntityTypeCount};

const EntityTypeRow* FindEntityType(EntityType type) {
    const auto number = static_cast<std::int32_t>(type);
    return number >= 0 && number < kEntityTypeCount ? &kEntityTypeRows[number] : nullptr;
}

} // namespace Vorn
