#pragma once

#include <cstdint>

namespace Vorn {

// What every file is written as. Raise it when a record changes, with a named threshold here and tests of both sides.
inline constexpr std::int32_t kArchiveVersion = 194;

// Actions that spawn ships tell whether these adopt the state of the first spawner's minor faction.
inline constexpr std::int32_t kSpawnAdoptionVersion = 193;
// Abilities cost an amount of each resource at each level, in place of one price.
inline constexpr std::int32_t kResourceCostLevelsVersion = 193;

} // namespace Vorn
