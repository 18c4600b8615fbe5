#pragma once

#include <cstdint>

namespace Vorn {

// The download that a body of a solar system belongs to while its file names none.
inline constexpr std::int32_t kDefaultDlcId = 731466;

} // namespace Vorn
