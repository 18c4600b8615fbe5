#pragma once

#include <memory>

namespace Vorn {

// The element that an access outside a container yields: fresh at each call, so that what is written to it is lost and
// nothing outside the container is ever touched.
template <class T>
T& ScratchElement() {
    static thread_local T scratch{};
    std::destroy_at(&scratch);
    return *std::construct_at(&scratch);
}

} // namespace Vorn
