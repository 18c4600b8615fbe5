#pragma once

#include <memory>

namespace Vorn {

// A large part of an object that many of its kind do not need: made with its defaults at the first use, in memory of
// its own.
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
