#pragma once

namespace Vorn {

// Bytes that the longest number text takes: a double of 309 digits with sign, point and decimals.
inline constexpr int kNumberTextCapacity = 328;

// The exact decimal value rounded to `places`, ties to even, never an exponent; "inf" and "nan" carry the sign bit.
char* PutFixed(char* out, double value, int places);

} // namespace Vorn
