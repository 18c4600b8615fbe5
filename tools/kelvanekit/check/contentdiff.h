#pragma once

#include "tools/kelvanekit/check/fieldreader.h"

#include <functional>

namespace Vorn {

// A difference between two contents. A value that only one of them has is null in the other.
struct FieldDifference {
    std::string path;
    const std::string_view* before;
    const std::string_view* after;
};

using OnDifference = std::function<void(const FieldDifference& difference)>;

// Tells the differences of two contents by their keys, in the order of their fields. Entries of a list are compared
// with those that they have most in common with. Either reader may be null, for a content without fields; both must
// have kept their values.
void CompareFields(const FieldReader* before, const FieldReader* after, const OnDifference& onDifference);

} // namespace Vorn
