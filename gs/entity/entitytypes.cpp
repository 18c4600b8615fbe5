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

// The order must not change: other tables refer to the types by their numbers.
constexpr EntityTypeRow kEntityTypeRows[] = {
    {EntityType::Ability, u"Ability", Make<AbilityDef>},
    {EntityType::Buff, u"Buff", Make<BuffDef>},
    {EntityType::EmpireWindowNode, u"EmpireWindowNode", Make<EmpireWindowNodeDef>},
    {EntityType::Fighter, u"Fighter", Make<FighterDef>},
    {EntityType::Squad, u"Squad", Make<SquadDef>},
    {EntityType::Debris, u"Debris", Make<DebrisDef>},
    {EntityType::Weapon, u"Weapon", Make<WeaponDef>},
    {EntityType::CannonShell, u"CannonShell", Make<CannonShellDef>},
    {EntityType::CapitalShip, u"CapitalShip", Make<CapitalShipDef>},
    {EntityType::Cosmetic, u"Cosmetic", Make<CosmeticDef>},
    {EntityType::EntryVehicle, u"EntryVehicle", Make<EntryVehicleDef>},
    {EntityType::Fleet, u"Fleet", Make<FleetDef>},
    {EntityType::Formation, u"Formation", Make<FormationDef>},
    {EntityType::Frigate, u"Frigate", Make<FrigateDef>},
    {EntityType::MissionAttackPlanet, u"MissionAttackPlanet", Make<Mission_AttackPlanetDef>},
    {EntityType::MissionCaptureResources, u"MissionCaptureResources", Make<Mission_CaptureResourcesDef>},
    {EntityType::MissionColonize, u"MissionColonize", Make<Mission_ColonizeDef>},
    {EntityType::MissionDefendFlagship, u"MissionDefendFlagship", Make<Mission_DefendFlagshipDef>},
    {EntityType::MissionBuildStarBase, u"MissionBuildStarBase", Make<Mission_BuildStarBaseDef>},
    {EntityType::MissionBuildMines, u"MissionBuildMines", Make<Mission_BuildMinesDef>},
    {EntityType::MissionExplore, u"MissionExplore", Make<Mission_ExploreDef>},
    {EntityType::MissionRaid, u"MissionRaid", Make<Mission_RaidDef>},
    {EntityType::PipCloud, u"PipCloud", Make<PipCloudDef>},
    {EntityType::Planet, u"Planet", Make<PlanetDef>},
    {EntityType::PlanetBonus, u"PlanetBonus", Make<PlanetBonusDef>},
    {EntityType::PlanetConnection, u"PlanetConnection", Make<PlanetConnectionDef>},
    {EntityType::PlanetModuleHangarDefense, u"PlanetModuleHangarDefense", Make<PlanetModuleOrbit_HangarDefenseDef>},
    {EntityType::PlanetModuleShipFactory, u"PlanetModuleShipFactory", Make<PlanetModuleOrbit_ShipFactoryDef>},
    {EntityType::PlanetModuleStandard, u"PlanetModuleStandard", Make<PlanetModuleOrbit_StandardDef>},
    {EntityType::PlanetModuleTradePort, u"PlanetModuleTradePort", Make<PlanetModuleOrbit_TradePortDef>},
    {EntityType::PlanetModuleRefinery, u"PlanetModuleRefinery", Make<PlanetModuleOrbit_RefineryDef>},
    {EntityType::PlanetModuleSpaceMine, u"PlanetModuleSpaceMine", nullptr},
    {EntityType::PlanetModuleUserAbilityModule, u"PlanetModuleUserAbilityModule", nullptr},
    {EntityType::PlanetModuleWeaponDefense, u"PlanetModuleWeaponDefense", Make<PlanetModuleOrbit_WeaponDefenseDef>},
    {EntityType::Player, u"Player", Make<PlayerDef>},
    {EntityType::Quest, u"Quest", Make<QuestDef>},
    {EntityType::ResearchSubject, u"ResearchSubject", Make<ResearchSubjectDef>},
    {EntityType::ResourceAsteroid, u"ResourceAsteroid", Make<ResourceAsteroidDef>},
    {EntityType::SpaceMine, u"SpaceMine", Make<SpaceMineDef>},
    {EntityType::Star, u"Star", Make<StarDef>},
    {EntityType::StarBase, u"StarBase", Make<StarBaseDef>},
    {EntityType::StarBaseUpgrade, u"StarBaseUpgrade", Make<StarBaseUpgradeDef>},
    {EntityType::Titan, u"Titan", Make<TitanDef>},
    {EntityType::TitanUpgrade, u"TitanUpgrade", Make<TitanUpgradeDef>},
    {EntityType::MissionFosterRelationships, u"MissionFosterRelationships", Make<Mission_FosterRelationshipsDef>},
    {EntityType::Trigger, u"Trigger", Make<TriggerDef>},
    {EntityType::MissionCaptureMinorFaction, u"MissionCaptureMinorFaction", Make<Mission_CaptureMinorFactionDef>},
};

constexpr auto kEntityTypeTexts = TextsInOrder<EntityType::MissionCaptureMinorFaction>(kEntityTypeRows);

} // namespace

const EnumTable kEntityTypeTable = MakeTable("EntityType", kEntityTypeTexts);

const EntityTypeRow* FindEntityType(EntityType type) {
    const auto number = static_cast<std::int32_t>(type);
    return number >= 0 && number < kEntityTypeTable.rowCount ? &kEntityTypeRows[number] : nullptr;
}

} // namespace Vorn
