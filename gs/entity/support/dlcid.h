#pragma once

#include <cstdint>

namespace Vorn {

// The default download content that a body of a solar system belongs to.
inline constexpr std::int32_t kDefaultDlcId = 731466;

} // namespace Vorn
