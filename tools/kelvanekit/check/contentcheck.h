#pragma once

#include "tools/kelvane/contentkind.h"
#include "tools/kelvanekit/findings/finding.h"

namespace Vorn {

class KnownNames;

struct CheckOptions {
    // Where the names of other contents are looked up; null for no lookup. Not owned.
    const KnownNames* names = nullptr;
};

// Whether the bytes of a content file are read as its binary form.
bool IsBinaryContent(std::string_view bytes);

// All mistakes in the bytes of a content file of either form, in the order of their places. Comes to an end and keeps
// its memory in proportion to the bytes whatever they are.
Findings CheckContent(ContentKind kind, std::string_view bytes, const CheckOptions& options = {});

} // namespace Vorn
