#pragma once

#include "engine/core/report.h"
#include "engine/datastructures/liststorage.h"
#include "engine/datastructures/scratchelement.h"

#include <algorithm>
#include <new>
#include <utility>

namespace Vorn {

// A heap array that grows from a full capacity to twice that plus one. An access outside fires its check and returns a
// scratch element; storage beyond kMaxListBytes ends the process.
template <class T>
class DynamicVector {
public:
    DynamicVector() = default;
    DynamicVector(const DynamicVector& other) { AppendAll(other); }
    DynamicVector& operator=(const DynamicVector& other) {
        if (this != &other) {
            Clear();
            AppendAll(other);
        }
        return *this;
    }
    ~DynamicVector() {
        Clear();
        std::free(elements);
    }

    int Size() const { return m_CurrentSize; }
    int Capacity() const { return m_MaxSize; }

    T& operator[](int i) { return IsIndexValid(i) ? elements[i] : ScratchElement<T>(); }
    const T& operator[](int i) const { return IsIndexValid(i) ? elements[i] : ScratchElement<T>(); }

    // Appends a fresh element.
    T& Append() {
        Grow();
        T* element = ::new (static_cast<void*>(elements + m_CurrentSize)) T();
        ++m_CurrentSize;
        return *element;
    }

    void Append(const T& value) { Append() = value; }

    // Allocates room for `newMaxSize` elements in total. Less than the current capacity fires its check and changes
    // nothing.
    void Reserve(int newMaxSize) {
        CheckAssert(newMaxSize >= 0, "newMaxSize >= 0");
        CheckAssert(newMaxSize >= m_MaxSize, "newMaxSize >= m_MaxSize");
        if (newMaxSize > m_MaxSize) {
            Relocate(newMaxSize);
        }
    }

    // Keeps the order of the other elements.
    void RemoveAt(int i) {
        if (IsIndexValid(i)) {
            std::move(elements + i + 1, elements + m_CurrentSize, elements + i);
            --m_CurrentSize;
            std::destroy_at(elements + m_CurrentSize);
        }
    }

    // Empties the list; the room stays.
    void Clear() {
        std::destroy(begin(), end());
        m_CurrentSize = 0;
    }

    T* begin() { return elements; }
    T* end() { return elements + m_CurrentSize; }
    const T* begin() const { return elements; }
    const T* end() const { return elements + m_CurrentSize; }

private:
    bool IsIndexValid(int i) const {
        CheckAssert(i >= 0, "i >= 0");
        CheckAssert(i < m_CurrentSize, "i < m_CurrentSize");
        return i >= 0 && i < m_CurrentSize;
    }

    void Grow() {
        if (m_CurrentSize == m_MaxSize) {
            Relocate(2LL * m_MaxSize + 1);
        }
    }

    void Relocate(long long newMaxSize) {
        if (static_cast<unsigned long long>(newMaxSize) > kMaxListBytes / sizeof(T)) {
            EndAbnormally();
        }
        T* moved = AllocateElements<T>(newMaxSize);
        std::uninitialized_move(begin(), end(), moved);
        std::destroy(begin(), end());
        std::free(elements);
        elements = moved;
        m_MaxSize = static_cast<int>(newMaxSize);
    }

    void AppendAll(const DynamicVector& other) {
        if (other.m_CurrentSize > m_MaxSize) {
            Relocate(other.m_CurrentSize);
        }
        for (const T& element : other) {
            Append(element);
        }
    }

    T* elements = nullptr;
    int m_CurrentSize = 0;
    int m_MaxSize = 0;
};

} // namespace Vorn
