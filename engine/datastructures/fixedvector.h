#pragma once

#include "engine/core/report.h"
#include "engine/datastructures/scratchelement.h"

#include <algorithm>
#include <cstddef>
#include <new>
#include <utility>

namespace Vorn {

// Up to MAX_SIZE elements inline; only those up to the current size are constructed. An access outside, or an element
// too many, fires its check and returns a scratch element; removing from an empty vector only fires its check.
template <class T, int MAX_SIZE>
class FixedVector {
public:
    FixedVector() = default;
    FixedVector(const FixedVector& other) { AppendAll(other); }
    FixedVector& operator=(const FixedVector& other) {
        if (this != &other) {
            Clear();
            AppendAll(other);
        }
        return *this;
    }
    ~FixedVector() { Clear(); }

    static constexpr int Capacity() { return MAX_SIZE; }
    int Size() const { return m_CurrentSize; }

    T& operator[](int i) { return IsIndexValid(i) ? begin()[i] : ScratchElement<T>(); }
    const T& operator[](int i) const { return IsIndexValid(i) ? begin()[i] : ScratchElement<T>(); }

    // Appends a fresh element.
    T& Append() {
        CheckAssert(m_CurrentSize < MAX_SIZE, "m_CurrentSize < MAX_SIZE");
        if (m_CurrentSize >= MAX_SIZE) {
            return ScratchElement<T>();
        }
        T* element = ::new (static_cast<void*>(begin() + m_CurrentSize)) T();
        ++m_CurrentSize;
        return *element;
    }

    void Append(const T& value) { Append() = value; }

    void RemoveLast() {
        CheckAssert(m_CurrentSize > 0, "m_CurrentSize > 0");
        if (m_CurrentSize > 0) {
            --m_CurrentSize;
            std::destroy_at(begin() + m_CurrentSize);
        }
    }

    // Keeps the order of the other elements.
    void RemoveAt(int i) {
        if (IsIndexValid(i)) {
            std::move(begin() + i + 1, end(), begin() + i);
            RemoveLast();
        }
    }

    void Clear() {
        std::destroy(begin(), end());
        m_CurrentSize = 0;
    }

    T* begin() { return std::launder(reinterpret_cast<T*>(storage)); }
    T* end() { return begin() + m_CurrentSize; }
    const T* begin() const { return std::launder(reinterpret_cast<const T*>(storage)); }
    const T* end() const { return begin() + m_CurrentSize; }

private:
    bool IsIndexValid(int i) const {
        CheckAssert(i >= 0, "i >= 0");
        CheckAssert(i < m_CurrentSize, "i < m_CurrentSize");
        return i >= 0 && i < m_CurrentSize;
    }

    void AppendAll(const FixedVector& other) {
        for (const T& element : other) {
            Append(element);
        }
    }

    int m_CurrentSize = 0;
    alignas(T) std::byte storage[sizeof(T) * MAX_SIZE];
};

} // namespace Vorn
