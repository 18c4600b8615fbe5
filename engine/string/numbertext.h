#pragma once

#include <cstdint>

namespace Vorn {

// Bytes that the longest number text takes: a double of 309 digits with sign, point and decimals.
inline constexpr int kNumberTextCapacity = 328;

// Each Put function writes a number's text without terminator and returns the end of what it wrote.
char* PutInt(char* out, std::int32_t value);
char* PutInt64(char* out, std::int64_t value);

// Lower-case digits, no prefix, no leading zeros.
char* PutHex(char* out, std::uint32_t value);
char* PutHex64(char* out, std::uint64_t value);

// The exact decimal value rounded to `places`, ties to even, never an exponent; "inf" and "nan" carry the sign bit.
char* PutFixed(char* out, double value, int places);

// PutFixed with six places, for the floats that content files are made of: integer arithmetic, exact all the same.
char* PutFixed6(char* out, float value);

} // namespace Vorn
