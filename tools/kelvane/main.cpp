#include "engine/core/abnormalend.h"
#include "engine/string/utf8.h"
#include "tools/kelvane/kelvane.h"

#include <csignal>
#include <new>
#include <vector>

#ifndef _WIN32
#include <cerrno>
#include <fcntl.h>
#endif

namespace {

int Run(const std::vector<std::u16string>& arguments) {
    std::set_new_handler(Vorn::EndAbnormally);
    return Vorn::RunKelvane(arguments, stdout);
}

} // namespace

#ifdef _WIN32

int wmain(int argc, wchar_t** argv) {
    std::vector<std::u16string> arguments;
    for (int i = 1; i < argc; ++i) {
        arguments.emplace_back(reinterpret_cast<const char16_t*>(argv[i]));
    }
    return Run(arguments);
}

#else

namespace {

// Otherwise a file could get the descriptor of a closed standard stream, and reports would be written into it.
void OpenClosedStreams() {
    for (int stream = 0; stream <= 2; ++stream) {
        if (fcntl(stream, F_GETFD) == -1 && errno == EBADF) {
            // The lowest free descriptor is that of the stream.
            open("/dev/null", O_RDWR);
        }
    }
}

} // namespace

int main(int argc, char** argv) {
    OpenClosedStreams();
    // If the reader of the reports closes its pipe, that must not stop a conversion. A write beyond the limit of file
    // sizes must fail like one to a full disk.
    std::signal(SIGPIPE, SIG_IGN);
    std::signal(SIGXFSZ, SIG_IGN);
    std::vector<std::u16string> arguments;
    for (int i = 1; i < argc; ++i) {
        arguments.push_back(Vorn::NameFromBytes(argv[i]));
    }
    return Run(arguments);
}

#endif
