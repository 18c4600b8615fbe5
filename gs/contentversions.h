#pragma once

#include <cstdint>

namespace Vorn {

// The versions that keys came with. A new key gets a threshold of its own here, the number that kArchiveVersion is
// raised to.

// Frigates have a rate at which they change relationships.
inline constexpr std::int32_t kRelationshipChangeRateVersion = 193;
// Ships and star bases have effects of their own for a jump, in place of two sounds.
inline constexpr std::int32_t kHyperspaceEffectsVersion = 194;
// Players have a race type where they only said whether it was psi, and six more events have a sound.
inline constexpr std::int32_t kRaceTypeVersion = 193;
// Actions that spawn ships tell whether these adopt the state of the first spawner's minor faction.
inline constexpr std::int32_t kSpawnAdoptionVersion = 193;
// Abilities cost an amount of each resource at each level, in place of one price.
inline constexpr std::int32_t kResourceCostLevelsVersion = 193;

} // namespace Vorn
