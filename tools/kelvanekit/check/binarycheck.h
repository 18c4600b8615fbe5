#pragma once

#include "tools/kelvanekit/check/contentcheck.h"

namespace Vorn {

// The mistakes of a file that begins like a binary one.
Findings CheckBinary(ContentKind kind, std::string_view bytes, const CheckOptions& options);

} // namespace Vorn
