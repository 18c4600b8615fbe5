#pragma once

#include "engine/core/report.h"
#include "engine/datastructures/scratchelement.h"

namespace Vorn {

// MAX_SIZE elements inline, all always present. An access outside fires its check and returns a scratch element.
template <class T, int MAX_SIZE>
class FixedArray {
public:
    static constexpr int Size() { return MAX_SIZE; }

    T& operator[](int i) { return IsIndexValid(i) ? elements[i] : ScratchElement<T>(); }
    const T& operator[](int i) const { return IsIndexValid(i) ? elements[i] : ScratchElement<T>(); }

    T* begin() { return elements; }
    T* end() { return elements + MAX_SIZE; }
    const T* begin() const { return elements; }
    const T* end() const { return elements + MAX_SIZE; }

private:
    static bool IsIndexValid(int i) {
        CheckAssert(i >= 0, "i >= 0");
        CheckAssert(i < MAX_SIZE, "i < MAX_SIZE");
        return i >= 0 && i < MAX_SIZE;
    }

    T elements[MAX_SIZE]{};
};

} // namespace Vorn
