#include "gs/entity/entitytypes.h"

#include "gs/entity/types/abilitydef.h"
#include "gs/entity/types/buffdef.h"
#include "gs/entity/types/cannonshelldef.h"
#include "gs/entity/types/capitalshipdef.h"
#include "gs/entity/types/cosmeticdef.h"
#include "gs/entity/types/debrisdef.h"
#include "gs/entity/types/empirewindownodedef.h"
#include "gs/entity/types/entryvehicledef.h"
#include "gs/entity/types/fighterdef.h"
#include "gs/entity/types/fleetdef.h"
#include "gs/entity/types/formationdef.h"
#include "gs/entity/types/frigatedef.h"
#include "gs/entity/types/missiondefs.h"
#include "gs/entity/types/pipclouddef.h"
#include "gs/entity/types/planetbonusdef.h"
#include "gs/entity/types/planetconnectiondef.h"
#include "gs/entity/types/planetdef.h"
#include "gs/entity/types/planetmoduleorbit_hangardefensedef.h"
#include "gs/entity/types/planetmoduleorbit_refinerydef.h"
#include "gs/entity/types/planetmoduleorbit_shipfactorydef.h"
#include "gs/entity/types/planetmoduleorbit_standarddef.h"
#include "gs/entity/types/planetmoduleorbit_tradeportdef.h"
#include "gs/entity/types/planetmoduleorbit_weapondefensedef.h"
#include "gs/entity/types/playerdef.h"
#include "gs/entity/types/questdef.h"
#include "gs/entity/types/researchsubjectdef.h"
#include "gs/entity/types/resourceasteroiddef.h"
#include "gs/entity/types/spaceminedef.h"
#include "gs/entity/types/squaddef.h"
#include "gs/entity/types/starbasedef.h"
#include "gs/entity/types/starbaseupgradedef.h"
#include "gs/entity/types/stardef.h"
#include "gs/entity/types/titandef.h"
#include "gs/entity/types/titanupgradedef.h"
#include "gs/entity/types/triggerdef.h"
#include "gs/entity/types/weapondef.h"

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
    {u"EmpireWindowNode", Make<EmpireWindowNodeDef>},
    {u"Fighter", Make<FighterDef>},
    {u"Squad", Make<SquadDef>},
    {u"Debris", Make<DebrisDef>},
    {u"Weapon", Make<WeaponDef>},
    {u"CannonShell", Make<CannonShellDef>},
    {u"CapitalShip", Make<CapitalShipDef>},
    {u"Cosmetic", Make<CosmeticDef>},
    {u"EntryVehicle", Make<EntryVehicleDef>},
    {u"Fleet", Make<FleetDef>},
    {u"Formation", Make<FormationDef>},
    {u"Frigate", Make<FrigateDef>},
    {u"MissionAttackPlanet", Make<Mission_AttackPlanetDef>},
    {u"MissionCaptureResources", Make<Mission_CaptureResourcesDef>},
    {u"MissionColonize", Make<Mission_ColonizeDef>},
    {u"MissionDefendFlagship", Make<Mission_DefendFlagshipDef>},
    {u"MissionBuildStarBase", Make<Mission_BuildStarBaseDef>},
    {u"MissionBuildMines", Make<Mission_BuildMinesDef>},
    {u"MissionExplore", Make<Mission_ExploreDef>},
    {u"MissionRaid", Make<Mission_RaidDef>},
    {u"PipCloud", Make<PipCloudDef>},
    {u"Planet", Make<PlanetDef>},
    {u"PlanetBonus", Make<PlanetBonusDef>},
    {u"PlanetConnection", Make<PlanetConnectionDef>},
    {u"PlanetModuleHangarDefense", Make<PlanetModuleOrbit_HangarDefenseDef>},
    {u"PlanetModuleShipFactory", Make<PlanetModuleOrbit_ShipFactoryDef>},
    {u"PlanetModuleStandard", Make<PlanetModuleOrbit_StandardDef>},
    {u"PlanetModuleTradePort", Make<PlanetModuleOrbit_TradePortDef>},
    {u"PlanetModuleRefinery", Make<PlanetModuleOrbit_RefineryDef>},
    {u"PlanetModuleSpaceMine", nullptr},
    {u"PlanetModuleUserAbilityModule", nullptr},
    {u"PlanetModuleWeaponDefense", Make<PlanetModuleOrbit_WeaponDefenseDef>},
    {u"Player", Make<PlayerDef>},
    {u"Quest", Make<QuestDef>},
    {u"ResearchSubject", Make<ResearchSubjectDef>},
    {u"ResourceAsteroid", Make<ResourceAsteroidDef>},
    {u"SpaceMine", Make<SpaceMineDef>},
    {u"Star", Make<StarDef>},
    {u"StarBase", Make<StarBaseDef>},
    {u"StarBaseUpgrade", Make<StarBaseUpgradeDef>},
    {u"Titan", Make<TitanDef>},
    {u"TitanUpgrade", Make<TitanUpgradeDef>},
    {u"MissionFosterRelationships", Make<Mission_FosterRelationshipsDef>},
    {u"Trigger", Make<TriggerDef>},
    {u"MissionCaptureMinorFaction", Make<Mission_CaptureMinorFactionDef>},
};

constexpr auto kEntityTypeTexts = TextsOf(kEntityTypeRows);

} // namespace

const EnumTable kEntityTypeTable = MakeTable("EntityType", kEntityTypeTexts);

const EntityTypeRow* FindEntityType(EntityType type) {
    const auto number = static_cast<std::int32_t>(type);
    return number >= 0 && number < kEntityTypeCount ? &kEntityTypeRows[number] : nullptr;
}

} // namespace Vorn
