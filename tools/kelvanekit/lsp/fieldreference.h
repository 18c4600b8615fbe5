#pragma once

#include "tools/kelvane/contentkind.h"
#include "tools/kelvanekit/check/askedfield.h"

#include <string>
#include <vector>

namespace Vorn {

// A line of a section.
struct SectionLine {
    // How many records deeper it is than the field.
    std::int32_t depth;
    std::string key;
    // The default; empty for a record.
    std::string value;
};

// The lines that stand in any case in a record, and in an entry of a list behind the field of its count, with their
// defaults.
std::vector<SectionLine> LinesBelow(ContentKind kind, const AskedFields& asks, std::int32_t ask);

// Makes the reference of keys, which the others need, if that was not done yet.
void PrepareReference();

// What the reference of keys tells of a field, as Markdown: kind, capacity, default, limit, texts, condition, version.
std::string DescribeField(ContentKind kind, const AskedFields& asks, std::int32_t ask);

} // namespace Vorn
