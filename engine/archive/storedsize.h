#pragma once

#include "engine/archive/archivable.h"

#include <type_traits>

namespace Vorn {

// The bytes that a value takes in a binary file, where a text counts as the four bytes of its length. Checks are off
// meanwhile. The context is that of the archive the value is for.
std::uint64_t StoredSize(const Archivable& value, const FieldContext* context);
std::uint64_t StoredSize(const SingleLineArchivable& value, const FieldContext* context);

template <class Number>
requires(std::is_arithmetic_v<Number>) std::uint64_t StoredSize(const Number&, const FieldContext*) {
    return sizeof(Number);
}

} // namespace Vorn
