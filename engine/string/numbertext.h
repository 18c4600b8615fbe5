#pragma once

#include <cstdint>

namespace Vorn {

// Units that the longest number text takes: a double of 309 digits with sign, point and decimals.
inline constexpr int kNumberTextCapacity = 328;

// Each Put function writes a number's text without terminator and returns the end of what it wrote.
char16_t* PutInt(char16_t* out, std::int32_t value);
char16_t* PutInt64(char16_t* out, std::int64_t value);

// Lower-case digits, no prefix, no leading zeros.
char16_t* PutHex(char16_t* out, std::uint32_t value);
char16_t* PutHex64(char16_t* out, std::uint64_t value);

// The exact decimal value rounded to `places`, ties to even, never an exponent; "inf" and "nan" carry the sign bit.
char16_t* PutFixed(char16_t* out, double value, int places);

// PutFixed with six places, for the floats that content files are made of: integer arithmetic, exact all the same.
char16_t* PutFixed6(char16_t* out, float value);

} // namespace Vorn
