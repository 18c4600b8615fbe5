#pragma once

#include "engine/core/abnormalend.h"

#include <cstddef>
#include <cstdlib>

namespace Vorn {

enum class Memory : bool { Raw, Zeroed };

// Memory for `count` elements of a list. More than kMaxListBytes, or more than the machine has, ends the process
// abnormally.
template <class T>
T* AllocateElements(long long count, Memory kind = Memory::Raw) {
    static_assert(alignof(T) <= alignof(std::max_align_t));
    const auto bytes = static_cast<unsigned long long>(count) * sizeof(T);
    if (count < 0 || bytes > kMaxListBytes) {
        EndAbnormally();
    }
    const std::size_t size = bytes != 0 ? bytes : 1;
    void* memory = kind == Memory::Zeroed ? std::calloc(size, 1) : std::malloc(size);
    if (memory == nullptr) {
        EndAbnormally();
    }
    return static_cast<T*>(memory);
}

} // namespace Vorn
