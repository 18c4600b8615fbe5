#pragma once

#include "engine/archive/archive.h"

namespace Vorn {

// What stands in front of a content file's fields. A binary file begins with the first three bytes of its header, and
// the first line of a text file has the mark in it; files with a version have it behind the header, and a 2 in either.
inline constexpr Label kVersionLabel = u"ZephArchiveVersion";
inline constexpr unsigned char kBinaryHeader[] = {'B', 'I', 'N', '2', '\n'};
inline constexpr int kBinaryMarkSize = 3;
inline constexpr int kOldBinaryHeaderSize = 4;
inline constexpr std::u16string_view kTextHeader = u"TXT2";
inline constexpr std::u16string_view kTextMark = u"TXT";
inline constexpr char16_t kVersionMark = u'2';

// Units of a text file's first line that are looked at, terminator included.
inline constexpr int kHeaderLineCapacity = 256;

} // namespace Vorn
