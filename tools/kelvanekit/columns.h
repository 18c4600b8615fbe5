#pragma once

#include <cstdint>
#include <string_view>

namespace Vorn {

// The column of a byte of a line in characters and in UTF-16 units, from 1; behind the end, that of the end.
std::int32_t CharacterColumn(std::string_view line, std::int32_t byte);
std::int32_t UnitColumn(std::string_view line, std::int32_t byte);

} // namespace Vorn
