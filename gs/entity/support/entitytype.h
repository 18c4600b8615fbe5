#pragma once

#include <cstdint>

namespace Vorn {

// The types of entity definitions; the numbers are the rows of the factory table in entitytypes.cpp.
enum class EntityType : std::int32_t {
    Invalid = -1,
    Ability,
    Buff,
    EmpireWindowNode,
    Fighter,
    Squad,
    Debris,
    Weapon,
    CannonShell,
    CapitalShip,
    Cosmetic,
    EntryVehicle,
    Fleet,
    Formation,
    Frigate,
    MissionAttackPlanet,
    MissionCaptureResources,
    MissionColonize,
    MissionDefendFlagship,
    MissionBuildStarBase,
    MissionBuildMines,
    MissionExplore,
    MissionRaid,
    PipCloud,
    Planet,
    PlanetBonus,
    PlanetConnection,
    PlanetModuleHangarDefense,
    PlanetModuleShipFactory,
    PlanetModuleStandard,
    PlanetModuleTradePort,
    PlanetModuleRefinery,
    PlanetModuleSpaceMine,
    PlanetModuleUserAbilityModule,
    PlanetModuleWeaponDefense,
    Player,
    Quest,
    ResearchSubject,
    ResourceAsteroid,
    SpaceMine,
    Star,
    StarBase,
    StarBaseUpgrade,
    Titan,
    TitanUpgrade,
    MissionFosterRelationships,
    Trigger,
    MissionCaptureMinorFaction
};

} // namespace Vorn
