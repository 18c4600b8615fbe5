#include "tools/kelvanekit/filename.h"
#include "tools/kelvanekit/kit.h"

#ifndef _WIN32
#include <csignal>
#include <fcntl.h>
#include <unistd.h>
#endif
#ifdef __GLIBC__
#include <malloc.h>
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

// A file needs again what the one before it gave back. To get that from the system each time costs a large part of the
// work on a small file, and half of that on a large one with mistakes.
void KeepFreedMemory() {
#ifdef __GLIBC__
    constexpr int kKept = 64 << 20;
    constexpr int kLargestBlock = 32 << 20;
    mallopt(M_TRIM_THRESHOLD, kKept);
    mallopt(M_MMAP_THRESHOLD, kLargestBlock);
#endif
}

} // namespace

int main(int argc, char** argv) {
    // A reader that goes away and a limit on files come as failed writes.
    std::signal(SIGPIPE, SIG_IGN);
    std::signal(SIGXFSZ, SIG_IGN);
    FillStandardStreams();
    KeepFreedMemory();
    return Vorn::RunKit({argv + 1, argv + argc});
}

#endif
