#include "gs/entity/support/buffinstantaction.h"

#include "engine/archive/typerows.h"
#include "gs/contentversions.h"

namespace Vorn {

namespace {

// The fields of all types of actions, each once.
using Values = BuffActionValues;
using Step = FieldStep<Values>;

constexpr Step kBuffType = [](FieldIo& io, Values& v) { io.Value(u"buffType", v.buffType); };
constexpr Step kEffectInfo = [](FieldIo& io, Values& v) { io.Record(u"effectInfo", v.effectInfo); };
constexpr Step kTargetFilter = [](FieldIo& io, Values& v) { io.Record(u"targetFilter", v.targetFilter); };
constexpr Step kToggleStateOnNameStringID = [](FieldIo& io, Values& v) {
    io.String(u"toggleStateOnNameStringID", v.toggleStateOnNameStringID, NameKind::StringId);
};
constexpr Step kToggleStateOnDescStringID = [](FieldIo& io, Values& v) {
    io.String(u"toggleStateOnDescStringID", v.toggleStateOnDescStringID, NameKind::StringId);
};
constexpr Step kRange = [](FieldIo& io, Values& v) { io.Record(u"range", v.range); };
constexpr Step kEntryVehicleType = [](FieldIo& io, Values& v) { io.Value(u"entryVehicleType", v.entryVehicleType); };
constexpr Step kNumEntryVehicles = [](FieldIo& io, Values& v) { io.Record(u"numEntryVehicles", v.numEntryVehicles); };
constexpr Step kTravelTime = [](FieldIo& io, Values& v) { io.Float(u"travelTime", v.travelTime); };
constexpr Step kEntryVehicleLaunchInfo = [](FieldIo& io, Values& v) {
    io.Record(u"entryVehicleLaunchInfo", v.entryVehicleLaunchInfo);
};
constexpr Step kTravelSpeed = [](FieldIo& io, Values& v) { io.Float(u"travelSpeed", v.travelSpeed); };
constexpr Step kWeaponEffects = [](FieldIo& io, Values& v) { io.Block(v.weaponEffects); };
constexpr Step kMaxTargetCount = [](FieldIo& io, Values& v) { io.Record(u"maxTargetCount", v.maxTargetCount); };
constexpr Step kColumnRadius = [](FieldIo& io, Values& v) { io.Record(u"columnRadius", v.columnRadius); };
constexpr Step kWeaponBank = [](FieldIo& io, Values& v) { io.Enum(u"weaponBank", v.weaponBank); };
constexpr Step kConeAngle = [](FieldIo& io, Values& v) { io.Record(u"coneAngle", v.coneAngle); };
constexpr Step kEffectStaggerDelay = [](FieldIo& io, Values& v) {
    io.Float(u"effectStaggerDelay", v.effectStaggerDelay);
};
constexpr Step kChainDelay = [](FieldIo& io, Values& v) { io.Float(u"chainDelay", v.chainDelay); };
constexpr Step kConnectionDistance = [](FieldIo& io, Values& v) {
    io.Uint(u"connectionDistance", v.connectionDistance);
};
constexpr Step kImpulse = [](FieldIo& io, Values& v) { io.Float(u"impulse", v.impulse); };
constexpr Step kForce = [](FieldIo& io, Values& v) { io.Float(u"force", v.force); };
constexpr Step kPopulationAdded = [](FieldIo& io, Values& v) { io.Record(u"populationAdded", v.populationAdded); };
constexpr Step kIsPermanent = [](FieldIo& io, Values& v) { io.Bool(u"isPermanent", v.isPermanent); };
constexpr Step kFailIfNotEnoughShipSlots = [](FieldIo& io, Values& v) {
    io.Bool(u"failIfNotEnoughShipSlots", v.failIfNotEnoughShipSlots);
};
constexpr Step kExperiencePercentageToAward = [](FieldIo& io, Values& v) {
    io.Float(u"experiencePercentageToAward", v.experiencePercentageToAward);
};
constexpr Step kDelayUntilColonization = [](FieldIo& io, Values& v) {
    io.Float(u"delayUntilColonization", v.delayUntilColonization);
};
constexpr Step kAfterColonizeBuffType = [](FieldIo& io, Values& v) {
    io.Value(u"afterColonizeBuffType", v.afterColonizeBuffType);
};
constexpr Step kAfterRuinBuffType = [](FieldIo& io, Values& v) { io.Value(u"afterRuinBuffType", v.afterRuinBuffType); };
constexpr Step kDamageType = [](FieldIo& io, Values& v) { io.Enum(u"damageType", v.damageType); };
constexpr Step kAntiMatterFromDamagePerc = [](FieldIo& io, Values& v) {
    io.Record(u"antiMatterFromDamagePerc", v.antiMatterFromDamagePerc);
};
constexpr Step kHullPerDebris = [](FieldIo& io, Values& v) { io.Record(u"hullPerDebris", v.hullPerDebris); };
constexpr Step kDebrisCleanupSounds = [](FieldIo& io, Values& v) {
    io.Record(u"debrisCleanupSounds", v.debrisCleanupSounds);
};
constexpr Step kSpaceMineType = [](FieldIo& io, Values& v) { io.Value(u"spaceMineType", v.spaceMineType); };
constexpr Step kExpiryTime = [](FieldIo& io, Values& v) { io.Record(u"expiryTime", v.expiryTime); };
constexpr Step kPercentageOfCost = [](FieldIo& io, Values& v) { io.Record(u"percentageOfCost", v.percentageOfCost); };
constexpr Step kNumFrigates = [](FieldIo& io, Values& v) { io.Record(u"numFrigates", v.numFrigates); };
constexpr Step kSpawnFrigateSoundID = [](FieldIo& io, Values& v) {
    io.Value(u"spawnFrigateSoundID", v.spawnFrigateSoundID);
};
constexpr Step kFrigateType = [](FieldIo& io, Values& v) { io.Value(u"frigateType", v.frigateType); };
constexpr Step kMatchOwnerDamageState = [](FieldIo& io, Values& v) {
    io.Bool(u"matchOwnerDamageState", v.matchOwnerDamageState);
};
constexpr Step kPostSpawnBuff = [](FieldIo& io, Values& v) { io.Value(u"postSpawnBuff", v.postSpawnBuff); };
constexpr Step kPlanetModuleType = [](FieldIo& io, Values& v) { io.Value(u"planetModuleType", v.planetModuleType); };
constexpr Step kSpawnPlanetModuleSoundID = [](FieldIo& io, Values& v) {
    io.Value(u"spawnPlanetModuleSoundID", v.spawnPlanetModuleSoundID);
};
constexpr Step kNumMines = [](FieldIo& io, Values& v) { io.Record(u"numMines", v.numMines); };
constexpr Step kAngleVariance = [](FieldIo& io, Values& v) { io.Float(u"angleVariance", v.angleVariance); };
constexpr Step kSpawnMineSoundID = [](FieldIo& io, Values& v) { io.Value(u"spawnMineSoundID", v.spawnMineSoundID); };
constexpr Step kSquadType = [](FieldIo& io, Values& v) { io.Value(u"squadType", v.squadType); };
constexpr Step kNumSquads = [](FieldIo& io, Values& v) { io.Record(u"numSquads", v.numSquads); };
constexpr Step kSpawnSquadSoundID = [](FieldIo& io, Values& v) { io.Value(u"spawnSquadSoundID", v.spawnSquadSoundID); };
constexpr Step kStarBaseType = [](FieldIo& io, Values& v) { io.Value(u"starBaseType", v.starBaseType); };
constexpr Step kPlacementRadius = [](FieldIo& io, Values& v) { io.Record(u"placementRadius", v.placementRadius); };
constexpr Step kNumFighters = [](FieldIo& io, Values& v) { io.Record(u"numFighters", v.numFighters); };
constexpr Step kCannonShellType = [](FieldIo& io, Values& v) { io.Value(u"cannonShellType", v.cannonShellType); };
constexpr Step kDamage = [](FieldIo& io, Values& v) { io.Record(u"damage", v.damage); };
constexpr Step kDamageAffectType = [](FieldIo& io, Values& v) { io.Enum(u"damageAffectType", v.damageAffectType); };
constexpr Step kIsDamageShared = [](FieldIo& io, Values& v) { io.Bool(u"isDamageShared", v.isDamageShared); };
constexpr Step kHullDamagePerc = [](FieldIo& io, Values& v) { io.Record(u"hullDamagePerc", v.hullDamagePerc); };
constexpr Step kDamagePerEntity = [](FieldIo& io, Values& v) { io.Record(u"damagePerEntity", v.damagePerEntity); };
constexpr Step kDamagePerHullPoint = [](FieldIo& io, Values& v) {
    io.Record(u"damagePerHullPoint", v.damagePerHullPoint);
};
constexpr Step kDamagePerPopulationPoint = [](FieldIo& io, Values& v) {
    io.Record(u"damagePerPopulationPoint", v.damagePerPopulationPoint);
};
constexpr Step kPopulationKilled = [](FieldIo& io, Values& v) { io.Record(u"populationKilled", v.populationKilled); };
constexpr Step kAllegianceChange = [](FieldIo& io, Values& v) { io.Record(u"allegianceChange", v.allegianceChange); };
constexpr Step kAbilityIndex = [](FieldIo& io, Values& v) { io.Float(u"abilityIndex", v.abilityIndex); };
constexpr Step kAbilityLevel = [](FieldIo& io, Values& v) { io.Record(u"abilityLevel", v.abilityLevel); };
constexpr Step kMinRandomAngularSpeed = [](FieldIo& io, Values& v) {
    io.Float(u"minRandomAngularSpeed", v.minRandomAngularSpeed);
};
constexpr Step kMaxRandomAngularSpeed = [](FieldIo& io, Values& v) {
    io.Float(u"maxRandomAngularSpeed", v.maxRandomAngularSpeed);
};
constexpr Step kMinRandomLinearSpeed = [](FieldIo& io, Values& v) {
    io.Float(u"minRandomLinearSpeed", v.minRandomLinearSpeed);
};
constexpr Step kMaxRandomLinearSpeed = [](FieldIo& io, Values& v) {
    io.Float(u"maxRandomLinearSpeed", v.maxRandomLinearSpeed);
};
constexpr Step kMinLinearSpeed = [](FieldIo& io, Values& v) { io.Float(u"minLinearSpeed", v.minLinearSpeed); };
constexpr Step kMaxLinearSpeed = [](FieldIo& io, Values& v) { io.Float(u"maxLinearSpeed", v.maxLinearSpeed); };
constexpr Step kBuffTypeToRemove = [](FieldIo& io, Values& v) { io.Value(u"buffTypeToRemove", v.buffTypeToRemove); };
constexpr Step kAntiMatter = [](FieldIo& io, Values& v) { io.Record(u"antiMatter", v.antiMatter); };
constexpr Step kAntiMatterPerc = [](FieldIo& io, Values& v) { io.Record(u"antiMatterPerc", v.antiMatterPerc); };
constexpr Step kPopulationAmount = [](FieldIo& io, Values& v) { io.Record(u"populationAmount", v.populationAmount); };
constexpr Step kPopulationAmountScalarType = [](FieldIo& io, Values& v) {
    io.Enum(u"populationAmountScalarType", v.populationAmountScalarType);
};
constexpr Step kHull = [](FieldIo& io, Values& v) { io.Record(u"hull", v.hull); };
constexpr Step kHullPerc = [](FieldIo& io, Values& v) { io.Record(u"hullPerc", v.hullPerc); };
constexpr Step kShields = [](FieldIo& io, Values& v) { io.Record(u"shields", v.shields); };
constexpr Step kShieldPerc = [](FieldIo& io, Values& v) { io.Record(u"shieldPerc", v.shieldPerc); };
constexpr Step kExperienceToGive = [](FieldIo& io, Values& v) { io.Float(u"experienceToGive", v.experienceToGive); };
constexpr Step kBountyAmount = [](FieldIo& io, Values& v) { io.Record(u"bountyAmount", v.bountyAmount); };
constexpr Step kDamageRetaliationPerc = [](FieldIo& io, Values& v) {
    io.Record(u"damageRetaliationPerc", v.damageRetaliationPerc);
};
constexpr Step kResourceToSteal = [](FieldIo& io, Values& v) { io.Enum(u"resourceToSteal", v.resourceToSteal); };
constexpr Step kResourceAmount = [](FieldIo& io, Values& v) { io.Record(u"resourceAmount", v.resourceAmount); };
constexpr Step kNumEffects = [](FieldIo& io, Values& v) { io.Uint(u"numEffects", v.numEffects); };
constexpr Step kDelayBetweenEffects = [](FieldIo& io, Values& v) {
    io.Float(u"delayBetweenEffects", v.delayBetweenEffects);
};
constexpr Step kSpawnShips = [](FieldIo& io, Values& v) {
    io.GrowingList(u"spawnShipsLevelCount", v.spawnShips, io.Records(u"spawnShips"));
};
constexpr Step kSpawnShipsArrivalDelayTime = [](FieldIo& io, Values& v) {
    io.Float(u"spawnShipsArrivalDelayTime", v.spawnShipsArrivalDelayTime);
};
constexpr Step kSpawnShipsHyperspaceSpawnType = [](FieldIo& io, Values& v) {
    io.Enum(u"spawnShipsHyperspaceSpawnType", v.spawnShipsHyperspaceSpawnType);
};
constexpr Step kShouldAdoptFirstSpawnersMinorFactionState = [](FieldIo& io, Values& v) {
    if (io.Since(kSpawnAdoptionVersion)) {
        io.Bool(u"shouldAdoptFirstSpawnersMinorFactionState", v.shouldAdoptFirstSpawnersMinorFactionState);
    }
};
constexpr Step kSpawnShipsMinStartingHullPerc = [](FieldIo& io, Values& v) {
    io.Float(u"spawnShipsMinStartingHullPerc", v.spawnShipsMinStartingHullPerc);
};
constexpr Step kSpawnShipsMaxStartingHullPerc = [](FieldIo& io, Values& v) {
    io.Float(u"spawnShipsMaxStartingHullPerc", v.spawnShipsMaxStartingHullPerc);
};
constexpr Step kNumExtractors = [](FieldIo& io, Values& v) { io.Record(u"numExtractors", v.numExtractors); };
constexpr Step kTeleportDistance = [](FieldIo& io, Values& v) { io.Float(u"teleportDistance", v.teleportDistance); };
constexpr Step kTeleportStopOffset = [](FieldIo& io, Values& v) {
    io.Float(u"teleportStopOffset", v.teleportStopOffset);
};
constexpr Step kAngleOffset = [](FieldIo& io, Values& v) { io.Degrees(u"angleOffset", v.angleOffset); };
constexpr Step kRelationshipIncrease = [](FieldIo& io, Values& v) {
    io.Record(u"relationshipIncrease", v.relationshipIncrease);
};
constexpr Step kCredits = [](FieldIo& io, Values& v) { io.Record(u"credits", v.credits); };
constexpr Step kResourceType = [](FieldIo& io, Values& v) { io.Enum(u"resourceType", v.resourceType); };
constexpr Step kResourceAmountScalarType = [](FieldIo& io, Values& v) {
    io.Enum(u"resourceAmountScalarType", v.resourceAmountScalarType);
};
constexpr Step kScuttleRefundPercentage = [](FieldIo& io, Values& v) {
    io.Record(u"scuttleRefundPercentage", v.scuttleRefundPercentage);
};

// The text and the fields of a type, and whether such an action is aimed at one chosen target.
struct ActionRow {
    std::u16string_view text;
    Step steps[8] = {};
    bool isAtOneTarget = false;
};

constexpr bool kOneTarget = true;

constexpr ActionRow kActionRows[] = {
    {u"ApplyBuffToSelf", {kBuffType, kEffectInfo}},
    {u"ApplyBuffToSelfWithFilter", {kBuffType, kTargetFilter}},
    {u"ApplyBuffToSelfOnWeaponFired", {kBuffType, kEffectInfo}},
    {u"ApplyOrRemoveBuffToSelf", {kBuffType, kEffectInfo, kToggleStateOnNameStringID, kToggleStateOnDescStringID}},
    {u"ApplyArbitraryTargettedBuffToSelf", {kBuffType, kRange, kEffectInfo}, kOneTarget},
    {u"ApplyTargettedBuffToSelf", {kBuffType, kTargetFilter, kRange, kEffectInfo}, kOneTarget},
    {u"ApplyTargettedBuffToSelfNoRange", {kBuffType, kTargetFilter, kEffectInfo}, kOneTarget},
    {u"ApplyTargettedBuffToSelfNoFilterNoRange", {kBuffType, kEffectInfo}, kOneTarget},
    {u"ApplyBuffToTarget", {kBuffType, kTargetFilter, kRange, kEffectInfo}, kOneTarget},
    {u"ApplyBuffToTargetWithEntryVehicles",
     {kBuffType, kTargetFilter, kRange, kEntryVehicleType, kNumEntryVehicles, kTravelTime, kEntryVehicleLaunchInfo},
     kOneTarget},
    {u"ApplyBuffToTargetWithTravel", {kBuffType, kTargetFilter, kRange, kTravelSpeed, kWeaponEffects}, kOneTarget},
    {u"ApplyBuffToTargetWithTravelNoFilterNoRange", {kBuffType, kTravelSpeed, kWeaponEffects}, kOneTarget},
    {u"ApplyBuffToTargetNoRange", {kBuffType, kTargetFilter, kEffectInfo}, kOneTarget},
    {u"ApplyBuffToTargetNoFilterNoRange", {kBuffType}, kOneTarget},
    {u"ApplyBuffToTargetOnWeaponFired", {kBuffType, kTargetFilter}},
    {u"ApplyBuffToTargetsAtOrbitBody", {kBuffType, kTargetFilter, kMaxTargetCount, kEffectInfo}},
    {u"ApplyBuffToTargetsAtAdjacentOrbitBodies", {kBuffType, kTargetFilter, kMaxTargetCount, kEffectInfo}},
    {u"ApplyBuffToTargetsInColumn",
     {kBuffType, kTargetFilter, kColumnRadius, kMaxTargetCount, kEffectInfo},
     kOneTarget},
    {u"ApplyBuffToTargetsInDirectionalCone",
     {kBuffType, kTargetFilter, kWeaponBank, kRange, kConeAngle, kMaxTargetCount, kEffectInfo},
     kOneTarget},
    {u"ApplyBuffToTargetsInDirectionalConeWithTravel",
     {kBuffType, kTargetFilter, kWeaponBank, kRange, kConeAngle, kMaxTargetCount, kTravelSpeed, kEffectInfo},
     kOneTarget},
    {u"ApplyBuffToTargetsInRadius", {kBuffType, kTargetFilter, kRange, kMaxTargetCount, kEffectInfo}},
    {u"ApplyBuffToTargetsInRadiusWithTravel",
     {kBuffType, kTargetFilter, kRange, kMaxTargetCount, kEffectInfo, kTravelSpeed, kEffectStaggerDelay,
      kWeaponEffects}},
    {u"ApplyBuffToTargetsInRadiusWithChainTravel",
     {kBuffType, kTargetFilter, kRange, kMaxTargetCount, kChainDelay, kWeaponEffects},
     kOneTarget},
    {u"ApplyBuffToTargetsInRadiusOfTargetWithTravel",
     {kBuffType, kTargetFilter, kRange, kMaxTargetCount, kTravelSpeed, kEffectStaggerDelay, kWeaponEffects},
     kOneTarget},
    {u"ApplyBuffToTargetsLinked", {kBuffType, kTargetFilter, kEffectInfo}, kOneTarget},
    {u"ApplyBuffToFirstSpawnerNoFilterNoRange", {kBuffType}},
    {u"ApplyBuffToLastSpawnerNoFilterNoRange", {kBuffType}},
    {u"ApplyBuffToLastSpawnerWithTravelNoFilterNoRange", {kBuffType, kTravelSpeed, kWeaponEffects}},
    {u"ApplyBuffToLocalOrbitBody", {kBuffType, kTargetFilter, kEffectInfo}},
    {u"ApplyBuffToLocalOrbitBodyWithTravel", {kBuffType, kTargetFilter, kTravelSpeed, kWeaponEffects}},
    {u"ApplyBuffToLocalOrbitBodiesWithinDistance",
     {kBuffType, kTargetFilter, kConnectionDistance, kMaxTargetCount, kEffectInfo}},
    {u"ApplyBuffToIncomingHyperspacers", {kBuffType, kTargetFilter, kEffectInfo}},
    {u"ApplyBuffToAllFirstSpawnerShipsAndStructures", {kBuffType, kTargetFilter, kEffectInfo}},
    {u"ApplyImpulseFromSpawner", {kImpulse}},
    {u"ApplyForceFromSpawner", {kForce}},
    {u"AddPopulationToPlanet", {kPopulationAdded}},
    {u"AttractDebris", {kRange, kTravelSpeed}},
    {u"ApplyImpulseInSpawnerDirection", {kImpulse}},
    {u"ChangePlayerIndexToFirstSpawner", {kIsPermanent, kFailIfNotEnoughShipSlots, kExperiencePercentageToAward}},
    {u"ChangePlayerIndexToCreator"},
    {u"ChangePlayerIndexToPriorMinorFaction"},
    {u"ColonizePlanet",
     {kTargetFilter, kRange, kDelayUntilColonization, kEntryVehicleType, kNumEntryVehicles, kTravelTime,
      kEntryVehicleLaunchInfo, kAfterColonizeBuffType},
     kOneTarget},
    {u"RuinPlanet", {kTargetFilter, kRange, kAfterRuinBuffType}, kOneTarget},
    {u"ConvertDamageToAntiMatter", {kDamageType, kAntiMatterFromDamagePerc}},
    {u"ConvertNearbyDebrisToHull", {kRange, kHullPerDebris, kDebrisCleanupSounds}},
    {u"ConvertSquadMembersToMines", {kSpaceMineType, kExpiryTime}},
    {u"ConvertFrigateToResources", {kPercentageOfCost}},
    {u"CreateClonedFrigate", {kNumFrigates, kImpulse, kExpiryTime, kSpawnFrigateSoundID}},
    {u"CreateFrigate",
     {kFrigateType, kNumFrigates, kMatchOwnerDamageState, kImpulse, kExpiryTime, kSpawnFrigateSoundID, kPostSpawnBuff}},
    {u"CreateFrigateAtTarget",
     {kFrigateType, kNumFrigates, kImpulse, kExpiryTime, kSpawnFrigateSoundID, kTargetFilter, kRange},
     kOneTarget},
    {u"CreateFrigateAtArbitraryTarget",
     {kFrigateType, kNumFrigates, kExpiryTime, kSpawnFrigateSoundID, kRange},
     kOneTarget},
    {u"CreatePlanetModule", {kPlanetModuleType, kSpawnPlanetModuleSoundID}},
    {u"CreateSpaceMine", {kSpaceMineType, kNumMines, kImpulse, kAngleVariance, kExpiryTime, kSpawnMineSoundID}},
    {u"CreateSquad", {kSquadType, kNumSquads, kExpiryTime, kSpawnSquadSoundID}},
    {u"CreateStarBase", {kStarBaseType, kPlacementRadius}},
    {u"CreateIllusionFighters", {kNumFighters, kExpiryTime, kEffectInfo}},
    {u"CreateCannonShell", {kCannonShellType, kEffectInfo}},
    {u"DoDamage", {kDamage, kDamageAffectType, kDamageType, kIsDamageShared}},
    {u"DoDamagePercOfCurrentHull", {kHullDamagePerc, kDamageAffectType, kDamageType, kIsDamageShared}},
    {u"DoDamagePerEntityInRadius",
     {kDamagePerEntity, kDamageAffectType, kDamageType, kIsDamageShared, kTargetFilter, kRange, kMaxTargetCount}},
    {u"DoDamagePerFirstSpawnerHull", {kDamagePerHullPoint, kDamageAffectType, kDamageType, kIsDamageShared}},
    {u"DoDamagePerLastSpawnerHull", {kDamagePerHullPoint, kDamageAffectType, kDamageType, kIsDamageShared}},
    {u"DoDamagePerLastSpawnerPopulation", {kDamagePerPopulationPoint, kDamageAffectType, kDamageType, kIsDamageShared}},
    {u"DoDamageToPlanet", {kDamage, kPopulationKilled}},
    {u"DoAllegianceChangeToPlanet", {kAllegianceChange}},
    {u"DoInterrupt"},
    {u"DoInterruptUltimate"},
    {u"ForceAttackFirstSpawner"},
    {u"ForceAttackersToRepickAttackTarget"},
    {u"GainHullEqualToTarget"},
    {u"GainShieldEqualToTarget"},
    {u"GainAntimatterEqualToTarget"},
    {u"IncreaseOwnerAbilityLevel", {kAbilityIndex, kAbilityLevel}},
    {u"InitializeRandomMotion",
     {kMinRandomAngularSpeed, kMaxRandomAngularSpeed, kMinRandomLinearSpeed, kMaxRandomLinearSpeed}},
    {u"InitializeMovementTowardLastSpawner", {kMinLinearSpeed, kMaxLinearSpeed}},
    {u"MakeDead"},
    {u"PropagateWeaponDamageReceivedToTargetsInRadius", {kTargetFilter, kRange, kMaxTargetCount}},
    {u"RecordDamage"},
    {u"ClearRecordedDamage"},
    {u"RemoveBuffOfType", {kBuffTypeToRemove}},
    {u"RemoveAntiMatter", {kAntiMatter}},
    {u"RemoveAntiMatterPerc", {kAntiMatterPerc}},
    {u"MatchTargetVelocity"},
    {u"RemovePlanetPopulation", {kPopulationAmount, kPopulationAmountScalarType}},
    {u"ResetPhysicsState"},
    {u"RestoreAntiMatter", {kAntiMatter}},
    {u"RestoreAntiMatterPerc", {kAntiMatterPerc}},
    {u"RestoreHullPoints", {kHull}},
    {u"RestoreHullPointsPerc", {kHullPerc}},
    {u"RestoreHullPointsPercOfFirstSpawnerMaxHull", {kHullPerc}},
    {u"RestoreShieldPoints", {kShields}},
    {u"RestoreShieldPointsPerc", {kShieldPerc}},
    {u"GiveExperience", {kExperienceToGive}},
    {u"RetaliateBounty", {kBountyAmount}},
    {u"RetaliateDamage", {kDamageRetaliationPerc}},
    {u"ResurrectCapitalShip"},
    {u"SetTauntTargetToLastSpawner"},
    {u"StealAntiMatterForFirstSpawner", {kAntiMatter}},
    {u"StealResources", {kResourceToSteal, kResourceAmount}},
    {u"Explore"},
    {u"PlayAttachedEffect", {kEffectInfo}},
    {u"PlayPersistantAttachedEffect", {kEffectInfo}},
    {u"PlayPersistantBeamEffect", {kWeaponEffects}},
    {u"PlayDetachedEffectsInRadius", {kEffectInfo, kRange, kNumEffects, kDelayBetweenEffects}},
    {u"SpawnShipsAtPlanet",
     {kSpawnShips, kSpawnShipsArrivalDelayTime, kSpawnShipsHyperspaceSpawnType,
      kShouldAdoptFirstSpawnersMinorFactionState, kSpawnShipsMinStartingHullPerc, kSpawnShipsMaxStartingHullPerc}},
    {u"SpawnShipsAtPlanetWithTarget",
     {kTargetFilter, kSpawnShips, kSpawnShipsArrivalDelayTime, kSpawnShipsHyperspaceSpawnType,
      kShouldAdoptFirstSpawnersMinorFactionState, kSpawnShipsMinStartingHullPerc, kSpawnShipsMaxStartingHullPerc},
     kOneTarget},
    {u"SpawnShipsAtPlanetWithRandomTarget",
     {kTargetFilter, kSpawnShips, kSpawnShipsArrivalDelayTime, kSpawnShipsHyperspaceSpawnType,
      kShouldAdoptFirstSpawnersMinorFactionState, kSpawnShipsMinStartingHullPerc, kSpawnShipsMaxStartingHullPerc}},
    {u"SpawnShipsAtTitan",
     {kSpawnShips, kSpawnShipsArrivalDelayTime, kSpawnShipsHyperspaceSpawnType,
      kShouldAdoptFirstSpawnersMinorFactionState, kSpawnShipsMinStartingHullPerc, kSpawnShipsMaxStartingHullPerc}},
    {u"SpawnResourceExtractors", {kNumExtractors}},
    {u"TeleportTowardsArbitraryTarget", {}, kOneTarget},
    {u"TeleportTowardsMoveTarget", {kTeleportDistance}},
    {u"TeleportTowardsTarget", {kTeleportStopOffset}, kOneTarget},
    {u"TiltUpVectorInTargetDirection", {kAngleOffset}, kOneTarget},
    {u"ApplyRelationshipModifierToOwnerOfPlanetInCurrentGravityWell", {kRelationshipIncrease}},
    {u"GiveCreditsToPlayer", {kCredits, kEffectInfo}},
    {u"GiveResourceToPlayer", {kResourceType, kResourceAmount, kResourceAmountScalarType, kEffectInfo}},
    {u"DoScuttle", {kScuttleRefundPercentage}},
    {u"ChangePlayerIndexToNeutral"},
};

constexpr auto kActionTexts = TextsOf(kActionRows);

constexpr EnumTable kBuffInstantActionTypeTable = MakeTable("BuffInstantActionType", kActionTexts);

} // namespace

void BuffInstantAction::Fields(FieldIo& io) {
    io.Enum(u"buffInstantActionType", buffInstantActionType, kBuffInstantActionTypeTable);
    io.Enum(u"instantActionTriggerType", instantActionTriggerType);
    TriggerFields(io);
    CheckAssert(buffInstantActionType != BuffInstantActionType::Invalid, "false");
    RowFields(io, kActionRows, buffInstantActionType, values);
}

void BuffInstantAction::TriggerFields(FieldIo& io) {
    switch (instantActionTriggerType) {
    case InstantActionTriggerType::OnChance:
        io.Record(u"buffApplyChance", buffApplyChance);
        break;
    case InstantActionTriggerType::OnDelay:
        io.Float(u"delayTime", delayTime);
        break;
    case InstantActionTriggerType::OnCondition:
        io.Block(*condition);
        break;
    case InstantActionTriggerType::OnWeaponFired:
        io.GrowingList(u"numWeaponClasses", weaponClassesForWeaponPassive, io.Enums(u"weaponClassForWeaponPassive"));
        io.Record(u"passiveWeaponEffectChance", passiveWeaponEffectChance);
        break;
    case InstantActionTriggerType::Invalid:
        CheckAssert(false, "false");
        break;
    default:
        break;
    }
}

bool BuffInstantAction::NeedsSingleTarget() const {
    const ActionRow* row = FindRow(kActionRows, buffInstantActionType);
    return row != nullptr && row->isAtOneTarget;
}

} // namespace Vorn
