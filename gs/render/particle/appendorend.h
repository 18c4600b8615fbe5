#pragma once

#include "engine/core/abnormalend.h"
#include "engine/datastructures/fixedvector.h"

namespace Vorn {

// Appends a new element to a list that must not overflow: one too many fires the check of the vector and ends the
// process abnormally.
template <class T, int N>
T& AppendOrEnd(FixedVector<T, N>& list) {
    const bool hasRoom = list.Size() < N;
    T& element = list.Append();
    if (!hasRoom) {
        EndAbnormally();
    }
    return element;
}

} // namespace Vorn
