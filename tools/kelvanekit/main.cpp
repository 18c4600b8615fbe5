#include "tools/kelvanekit/filename.h"
#include "tools/kelvanekit/kit.h"

#ifndef _WIN32
#include <csignal>
#include <fcntl.h>
#include <unistd.h>
#endif

#ifdef _WIN32

int wmain(int argc, wchar_t** argv) {
    std::vector<std::string> arguments;
    for (int i = 1; i < argc; ++i) {
        arguments.push_back(Vorn::NameOf(std::filesystem::path(argv[i])));
    }
    return Vorn::RunKit(std::move(arguments));
}

#else

namespace {

// No file that is opened later takes the place of a standard stream that is closed.
void FillStandardStreams() {
    int descriptor = 0;
    do {
        descriptor = open("/dev/null", O_RDWR);
    } while (descriptor >= 0 && descriptor <= STDERR_FILENO);
    if (descriptor > STDERR_FILENO) {
        close(descriptor);
    }
}

} // namespace

int main(int argc, char** argv) {
    // A reader that goes away and a limit on files come as failed writes.
    std::signal(SIGPIPE, SIG_IGN);
    std::signal(SIGXFSZ, SIG_IGN);
    FillStandardStreams();
    return Vorn::RunKit({argv + 1, argv + argc});
}

#endif
