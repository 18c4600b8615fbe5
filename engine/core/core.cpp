#include "engine/core/core.h"

#include <utility>

namespace Vorn {

namespace {
constinit Core* g_Core = nullptr;
}

Core::Core() : previous(std::exchange(g_Core, this)) {}

Core::~Core() {
    g_Core = previous;
}

Core& GetCore() {
    return *g_Core;
}

} // namespace Vorn
