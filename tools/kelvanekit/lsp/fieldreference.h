#pragma once

#include "tools/kelvane/contentkind.h"
#include "tools/kelvanekit/check/askedfield.h"

#include <string>
#include <vector>

namespace Vorn {

// A line of a section.
struct SectionLine {
    // Records of the section around it.
    std::int32_t depth;
    std::string key;
    // The default; empty for a record.
    std::string value;
};

// The lines that stand in any case in a record that is missing as a whole, with their defaults.
std::vector<SectionLine> SectionOf(ContentKind kind, const AskedFields& asks, std::int32_t ask);

// What the reference of keys tells of a field, as Markdown: kind, capacity, default, limit, texts, condition, version.
std::string DescribeField(ContentKind kind, const AskedFields& asks, std::int32_t ask);

} // namespace Vorn
