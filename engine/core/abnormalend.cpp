#include "engine/core/abnormalend.h"

#include "engine/core/debugoutput.h"

#include <cstdlib>

namespace Vorn {

namespace {
constinit thread_local EndGuard* g_EndGuards = nullptr;
}

EndGuard::EndGuard() : next(g_EndGuards) {
    g_EndGuards = this;
}

EndGuard::~EndGuard() {
    EndGuard** link = &g_EndGuards;
    while (*link != this) {
        link = &(*link)->next;
    }
    *link = next;
}

void EndAbnormally() {
    for (EndGuard* guard = g_EndGuards; guard != nullptr; guard = guard->next) {
        guard->BeforeAbnormalEnd();
    }
    FlushDebugOutput();
    std::abort();
}

} // namespace Vorn
