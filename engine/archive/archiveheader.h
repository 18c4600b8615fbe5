#pragma once

#include "engine/archive/archive.h"

namespace Vorn {

// The header of a content file. A binary file begins with the first three bytes of kBinaryHeader, and the first line of
// a text file contains kTextMark. A 2 in the header means that the version follows it.
inline constexpr Label kVersionLabel = u"ZephArchiveVersion";
inline constexpr unsigned char kBinaryHeader[] = {'B', 'I', 'N', '2', '\n'};
inline constexpr int kBinaryMarkSize = 3;
inline constexpr int kOldBinaryHeaderSize = 4;
inline constexpr std::u16string_view kTextHeader = u"TXT2";
inline constexpr std::u16string_view kTextMark = u"TXT";
inline constexpr char16_t kVersionMark = u'2';

// Units of a text file's first line that are examined, terminator included.
inline constexpr int kHeaderLineCapacity = 256;

} // namespace Vorn
