#pragma once

#include <memory>

namespace Vorn {

// The element that an access outside a container returns: a new one at each call, so that writes to it have no effect
// and no memory outside the container is touched.
template <class T>
T& ScratchElement() {
    static thread_local T scratch{};
    std::destroy_at(&scratch);
    return *std::construct_at(&scratch);
}

} // namespace Vorn
