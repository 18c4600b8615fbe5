#include "tools/kelvanekit/interruption.h"

#include <csignal>

namespace Vorn {

namespace {

#ifdef _WIN32
constexpr int kSignals[] = {SIGINT, SIGTERM};
#else
constexpr int kSignals[] = {SIGINT, SIGTERM, SIGHUP};
#endif

using Handler = void (*)(int);

volatile std::sig_atomic_t g_Wanted = 0;

extern "C" void NoteSignal(int number) {
    g_Wanted = number;
    std::signal(number, SIG_DFL);
}

} // namespace

// A signal that is ignored, as that of a hung-up terminal under nohup, stays so.
Interruption::Interruption() {
    for (const int number : kSignals) {
        if (std::signal(number, NoteSignal) == Handler(SIG_IGN)) {
            std::signal(number, SIG_IGN);
        }
    }
}

Interruption::~Interruption() {
    for (const int number : kSignals) {
        if (std::signal(number, SIG_DFL) == Handler(SIG_IGN)) {
            std::signal(number, SIG_IGN);
        }
    }
    if (g_Wanted != 0) {
        std::raise(g_Wanted);
    }
}

bool Interruption::IsWanted() {
    return g_Wanted != 0;
}

} // namespace Vorn
