#pragma once

#include "engine/core/stringbuffer.h"

#include <cstdint>
#include <string_view>

namespace Vorn {

// Exact comparison by unsigned code units: 0, or -1 or 1 as the first differing unit of `s1` is lower or higher.
// A null text fires its check and counts as empty.
int Compare(const char16_t* s1, const char16_t* s2);

// Copies with terminator. A source that does not fit fires two checks and is cut at capacity minus one.
void Copy(StringBuffer destination, std::u16string_view source);

// Appends to the text that `destination` holds, cut and checked like Copy.
void Append(StringBuffer destination, std::u16string_view source);

// Copies `nCount` units from position `iFirst`, as far as the source reaches and the destination has room.
void CopyPart(StringBuffer destination, std::u16string_view source, int iFirst, int nCount);

// Units before the terminator; 0 for null.
int GetLength(const char16_t* s);

// The text in a buffer of `capacity` units that need not hold a terminator.
std::u16string_view TextIn(const char16_t* units, int capacity);

} // namespace Vorn
