#pragma once

#include "gs/entity/support/bufflevelfloattable.h"
#include "gs/entity/support/buffweaponeffects.h"
#include "gs/entity/support/entitydefname.h"
#include "gs/entity/support/spawnships.h"
#include "gs/entity/support/targetfilter.h"

namespace Vorn {

enum class BuffAmountScalarType : std::int32_t { Invalid = -1 };

inline constexpr std::u16string_view kBuffAmountScalarTypeRows[] = {u"Flat", u"PerOwnerShipSlot",
                                                                    u"PerOwnerPlanetPopulation"};
template <>
inline constexpr EnumTable kEnumTable<BuffAmountScalarType> = MakeTable("BuffAmountScalarType",
                                                                        kBuffAmountScalarTypeRows);

enum class HyperspaceSpawnType : std::int32_t { Invalid = -1 };

inline constexpr std::u16string_view kHyperspaceSpawnTypeRows[] = {u"FleetBeacon",
                                                                   u"PirateRaid",
                                                                   u"Rebellion",
                                                                   u"Outlaws",
                                                                   u"MinorFactionAntiModuleRaid",
                                                                   u"MinorFactionAttackRaid",
                                                                   u"MinorFactionDefenseRaid",
                                                                   u"MinorFactionScoutRaid",
                                                                   u"MinorFactionSiegeRaid",
                                                                   u"FromFactories"};
template <>
inline constexpr EnumTable kEnumTable<HyperspaceSpawnType> = MakeTable("HyperspaceSpawnType", kHyperspaceSpawnTypeRows);

// The values of an instant action, of which each type has a few. They are named after their fields. The angle
// `angleOffset` is in radians here and in degrees in every file.
struct BuffActionValues {
    EntityDefNameOf<EntityType::Buff> buffType;
    EntityDefNameOf<EntityType::EntryVehicle> entryVehicleType;
    EntityDefNameOf<EntityType::Buff> afterColonizeBuffType;
    EntityDefNameOf<EntityType::Buff> afterRuinBuffType;
    EntityDefNameOf<EntityType::SpaceMine> spaceMineType;
    EntityDefNameOf<EntityType::Frigate> frigateType;
    EntityDefNameOf<EntityType::Buff> postSpawnBuff;
    PlanetModuleDefName planetModuleType;
    EntityDefNameOf<EntityType::Squad> squadType;
    EntityDefNameOf<EntityType::StarBase> starBaseType;
    EntityDefNameOf<EntityType::CannonShell> cannonShellType;
    EntityDefNameOf<EntityType::Buff> buffTypeToRemove;

    TargetFilter targetFilter;

    BuffEffectInfo effectInfo;
    BuffEffectInfo entryVehicleLaunchInfo;
    BuffWeaponEffects weaponEffects;

    SoundIDVector debrisCleanupSounds;
    SoundID spawnFrigateSoundID;
    SoundID spawnPlanetModuleSoundID;
    SoundID spawnMineSoundID;
    SoundID spawnSquadSoundID;

    FixedString<256> toggleStateOnNameStringID;
    FixedString<256> toggleStateOnDescStringID;

    WeaponBank weaponBank = WeaponBank::Invalid;
    DamageType damageType = DamageType::Invalid;
    DamageAffectType damageAffectType = DamageAffectType::Invalid;
    BuffAmountScalarType populationAmountScalarType = BuffAmountScalarType::Invalid;
    Resource resourceToSteal = Resource::Invalid;
    HyperspaceSpawnType spawnShipsHyperspaceSpawnType = HyperspaceSpawnType::Invalid;
    Resource resourceType = Resource::Invalid;
    BuffAmountScalarType resourceAmountScalarType = BuffAmountScalarType::Invalid;

    BuffLevelFloatTable range;
    BuffLevelFloatTable numEntryVehicles;
    BuffLevelFloatTable maxTargetCount;
    BuffLevelFloatTable columnRadius;
    BuffLevelFloatTable coneAngle;
    BuffLevelFloatTable populationAdded;
    BuffLevelFloatTable antiMatterFromDamagePerc;
    BuffLevelFloatTable hullPerDebris;
    BuffLevelFloatTable expiryTime;
    BuffLevelFloatTable percentageOfCost;
    BuffLevelFloatTable numFrigates;
    BuffLevelFloatTable numMines;
    BuffLevelFloatTable numSquads;
    BuffLevelFloatTable placementRadius;
    BuffLevelFloatTable numFighters;
    BuffLevelFloatTable damage;
    BuffLevelFloatTable hullDamagePerc;
    BuffLevelFloatTable damagePerEntity;
    BuffLevelFloatTable damagePerHullPoint;
    BuffLevelFloatTable damagePerPopulationPoint;
    BuffLevelFloatTable populationKilled;
    BuffLevelFloatTable allegianceChange;
    BuffLevelFloatTable abilityLevel;
    BuffLevelFloatTable antiMatter;
    BuffLevelFloatTable antiMatterPerc;
    BuffLevelFloatTable populationAmount;
    BuffLevelFloatTable hull;
    BuffLevelFloatTable hullPerc;
    BuffLevelFloatTable shields;
    BuffLevelFloatTable shieldPerc;
    BuffLevelFloatTable bountyAmount;
    BuffLevelFloatTable damageRetaliationPerc;
    BuffLevelFloatTable resourceAmount;
    BuffLevelFloatTable numExtractors;
    BuffLevelFloatTable relationshipIncrease;
    BuffLevelFloatTable credits;
    BuffLevelFloatTable scuttleRefundPercentage;

    float travelTime = 0.0f;
    float travelSpeed = 0.0f;
    float effectStaggerDelay = 0.0f;
    float chainDelay = 0.0f;
    float impulse = 0.0f;
    float force = 0.0f;
    float experiencePercentageToAward = 0.0f;
    float delayUntilColonization = 0.0f;
    float angleVariance = 0.0f;
    float abilityIndex = 0.0f;
    float minRandomAngularSpeed = 0.0f;
    float maxRandomAngularSpeed = 0.0f;
    float minRandomLinearSpeed = 0.0f;
    float maxRandomLinearSpeed = 0.0f;
    float minLinearSpeed = 0.0f;
    float maxLinearSpeed = 0.0f;
    float experienceToGive = 0.0f;
    float delayBetweenEffects = 0.0f;
    float spawnShipsArrivalDelayTime = 0.0f;
    float spawnShipsMinStartingHullPerc = 1.0f;
    float spawnShipsMaxStartingHullPerc = 1.0f;
    float teleportDistance = 0.0f;
    float teleportStopOffset = 0.0f;
    float angleOffset = 0.0f;

    std::uint32_t connectionDistance = 0;
    std::uint32_t numEffects = 0;
    Bool isPermanent;
    Bool failIfNotEnoughShipSlots;
    Bool matchOwnerDamageState;
    Bool isDamageShared;
    Bool shouldAdoptFirstSpawnersMinorFactionState = true;
    DynamicVector<SpawnShipsWithInternalFleetPoints> spawnShips;
};

} // namespace Vorn
