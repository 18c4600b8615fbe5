#pragma once

#include "engine/archive/archivable.h"

#include <type_traits>

namespace Vorn {

// The size of a value in a binary file; a text counts as the four bytes of its length. Checks are off during the call.
// The context is that of the archive of the value.
std::uint64_t StoredSize(const Archivable& value, const FieldContext* context);
std::uint64_t StoredSize(const SingleLineArchivable& value, const FieldContext* context);

template <class Number>
requires(std::is_arithmetic_v<Number>) std::uint64_t StoredSize(const Number&, const FieldContext*) {
    return sizeof(Number);
}

} // namespace Vorn
