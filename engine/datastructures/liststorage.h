#pragma once

#include "engine/core/abnormalend.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstdlib>

namespace Vorn {

enum class Memory : bool { Raw, Zeroed };

// Memory for `count` elements of a list. More than the machine has ends the process abnormally.
template <class T>
T* AllocateElements(long long count, Memory kind = Memory::Raw) {
    static_assert(alignof(T) <= alignof(std::max_align_t));
    if (count < 0 || static_cast<unsigned long long>(count) > PTRDIFF_MAX / sizeof(T)) {
        EndAbnormally();
    }
    const std::size_t size = std::max<std::size_t>(static_cast<std::size_t>(count) * sizeof(T), 1);
    void* memory = kind == Memory::Zeroed ? std::calloc(size, 1) : std::malloc(size);
    if (memory == nullptr) {
        EndAbnormally();
    }
    return static_cast<T*>(memory);
}

} // namespace Vorn
