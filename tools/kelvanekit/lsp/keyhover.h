#pragma once

#include "tools/kelvane/contentkind.h"
#include "tools/kelvanekit/check/askedfield.h"

#include <string>

namespace Vorn {

// What the reference of keys tells of a field, as Markdown: kind, capacity, default, limit, texts, condition, version.
std::string DescribeField(ContentKind kind, const AskedFields& asks, std::int32_t ask);

} // namespace Vorn
