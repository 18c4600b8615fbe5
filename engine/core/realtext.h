#pragma once

namespace Vorn {

// The length of the longest text of a number: a double of 309 digits with sign, point and decimals.
inline constexpr int kNumberTextCapacity = 328;

// The exact decimal value rounded to `places`, ties to even, without an exponent; "inf" and "nan" have a "-" if the
// sign bit is set.
char* PutFixed(char* out, double value, int places);

} // namespace Vorn
