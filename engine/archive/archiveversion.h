#pragma once

#include <cstdint>

namespace Vorn {

// What every file is written as. Raise it when a record changes, with a named threshold here and tests of both sides.
inline constexpr std::int32_t kArchiveVersion = 194;

// Players have a race type where they only told psi from others, and six more events have a sound.
inline constexpr std::int32_t kRaceTypeVersion = 193;

} // namespace Vorn
