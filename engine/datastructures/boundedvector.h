#pragma once

#include "engine/datastructures/dynamicvector.h"

namespace Vorn {

// A list of at most N elements, for records of which there may be many: unlike a FixedVector it needs no memory while
// it is empty. FieldIo enforces the limit.
template <class T, int N>
class BoundedVector : public DynamicVector<T> {};

} // namespace Vorn
