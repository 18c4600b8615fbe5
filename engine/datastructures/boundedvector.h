#pragma once

#include "engine/datastructures/dynamicvector.h"

namespace Vorn {

// A list of which a file may hold N elements, for records of which there may be many: unlike a FixedVector it takes no
// room until it has elements. The field list keeps the limit.
template <class T, int N>
class BoundedVector : public DynamicVector<T> {};

} // namespace Vorn
