#pragma once

#include <memory>

namespace Vorn {

// A large part of an object that is often not needed: created with its defaults at the first use, on the heap.
template <class T>
class OnDemand {
public:
    T& operator*() {
        if (part == nullptr) {
            part = std::make_unique<T>();
        }
        return *part;
    }
    T* operator->() { return &**this; }

private:
    std::unique_ptr<T> part;
};

} // namespace Vorn
