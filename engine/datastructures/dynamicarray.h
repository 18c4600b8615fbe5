#pragma once

#include "engine/core/report.h"
#include "engine/datastructures/liststorage.h"
#include "engine/datastructures/scratchelement.h"

#include <memory>

namespace Vorn {

// Elements whose default is all zero bits: the platform provides a large array of them zeroed, and its pages stay
// unused until an element is written.
template <class T>
inline constexpr bool kIsZeroByDefault = false;

// A heap array of a set size with no spare room. An access outside fires its check and returns a scratch element.
template <class T>
class DynamicArray {
public:
    DynamicArray() = default;
    DynamicArray(const DynamicArray&) = delete;
    DynamicArray& operator=(const DynamicArray&) = delete;
    ~DynamicArray() { Release(); }

    int Size() const { return size; }

    // Drops the old elements for `newSize` default ones. A negative size fires its check and, like one that
    // the machine has no memory for, ends the process abnormally.
    void Resize(int newSize) {
        CheckAssert(newSize >= 0, "newSize >= 0");
        T* fresh = AllocateElements<T>(newSize, kIsZeroByDefault<T> ? Memory::Zeroed : Memory::Raw);
        Release();
        elements = fresh;
        size = newSize;
        if constexpr (!kIsZeroByDefault<T>) {
            std::uninitialized_value_construct(begin(), end());
        }
    }

    T& operator[](int i) { return IsIndexValid(i) ? elements[i] : ScratchElement<T>(); }
    const T& operator[](int i) const { return IsIndexValid(i) ? elements[i] : ScratchElement<T>(); }

    T* begin() { return elements; }
    T* end() { return elements + size; }
    const T* begin() const { return elements; }
    const T* end() const { return elements + size; }

private:
    bool IsIndexValid(int i) const {
        const bool valid = i >= 0 && i < size;
        CheckAssert(valid, "IsIndexValid(i)");
        return valid;
    }

    void Release() {
        std::destroy(begin(), end());
        std::free(elements);
    }

    T* elements = nullptr;
    int size = 0;
};

} // namespace Vorn
