#pragma once

#include "tools/kelvanekit/check/askedfield.h"

#include <string_view>

namespace Vorn {

// Whether a key may be a misspelt label.
bool IsLike(std::string_view key, Label label);

// Whether a line looks like a row of a matrix that lacks its first bracket.
bool IsLikeRow(std::string_view line);

// Whether a value looks like one of the kind.
bool FitsKind(std::string_view value, FieldKind kind);

} // namespace Vorn
