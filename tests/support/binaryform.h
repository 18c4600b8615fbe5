#pragma once

#include "tests/support/contentlines.h"

#include <cstdint>

namespace Vorn {

// The bytes of a value in a binary file, derived from its text alone: a quoted text, TRUE or FALSE, a number with or
// without a point, or several in brackets. Only colours are recognised by their keys.
std::string BinaryValue(std::string_view line);

// The bytes of each line in a binary file.
std::vector<std::string> BinaryFields(const Lines& lines);

// Bytes of an unsigned number of 32 bits.
std::string Bytes32(std::uint32_t number);

// UTF-16 units of a UTF-8 text.
std::u16string Utf16(std::string_view text);

} // namespace Vorn
