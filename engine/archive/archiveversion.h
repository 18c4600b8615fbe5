#pragma once

#include <cstdint>

namespace Vorn {

// What every file is written as. Raise it when a record changes.
inline constexpr std::int32_t kArchiveVersion = 194;

} // namespace Vorn
