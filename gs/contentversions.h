#pragma once

#include <cstdint>

namespace Vorn {

// The versions that introduced keys. Each new key has a threshold of its own here: the number that kArchiveVersion is
// raised to.

// Frigates have a rate at which they change relationships.
inline constexpr std::int32_t kRelationshipChangeRateVersion = 193;
// Ships and star bases have effects of their own for a jump instead of two sounds.
inline constexpr std::int32_t kHyperspaceEffectsVersion = 194;
// Players have a race type instead of a flag for psi, and six more events have a sound.
inline constexpr std::int32_t kRaceTypeVersion = 193;
// Actions that spawn ships have a flag for adopting the minor faction state of the first spawner.
inline constexpr std::int32_t kSpawnAdoptionVersion = 193;
// Abilities cost an amount of each resource at each level instead of one price.
inline constexpr std::int32_t kResourceCostLevelsVersion = 193;

} // namespace Vorn
