#pragma once

#include "tools/kelvanekit/check/loadedcontent.h"

#include <string>

namespace Vorn {

// What a conversion to text makes of a content, without byte-order mark, header and version.
std::string WriteAsText(LoadedContent& content, std::size_t expectedSize);

// Whether two values mean the same to a reader: the same text, the same number in another spelling.
bool IsSameValue(std::string_view left, std::string_view right);

// Whether the lines of two texts have the same keys and values.
bool IsSameText(std::string_view left, std::string_view right);

} // namespace Vorn
