#include "tools/kelvanekit/outputstream.h"

#include <algorithm>
#include <cerrno>
#include <cstdlib>
#include <system_error>

#ifdef _WIN32
#include "engine/string/utf8.h"
#include <io.h>
#include <windows.h>
#else
#include <poll.h>
#include <unistd.h>
#endif

namespace Vorn {

namespace {

constexpr std::size_t kBlock = 65536;

bool IsSet(const char* variable) {
    const char* value = std::getenv(variable);
    return value != nullptr && *value != '\0';
}

#ifdef _WIN32

HANDLE HandleOf(OutputStream::Target target) {
    return GetStdHandle(target == OutputStream::Target::Output ? STD_OUTPUT_HANDLE : STD_ERROR_HANDLE);
}

// Escape sequences have to be switched on first.
bool UnderstandsColors(OutputStream::Target target) {
    DWORD mode = 0;
    return GetConsoleMode(HandleOf(target), &mode) != 0 &&
           SetConsoleMode(HandleOf(target), mode | ENABLE_VIRTUAL_TERMINAL_PROCESSING) != 0;
}

// The number of bytes written, or -1. A console takes the text in 16-bit units, all at once.
std::ptrdiff_t WriteSome(OutputStream::Target target, std::string_view bytes) {
    DWORD mode = 0;
    if (GetConsoleMode(HandleOf(target), &mode) == 0) {
        return _write(static_cast<int>(target), bytes.data(), static_cast<unsigned>(bytes.size()));
    }
    const std::u16string units = NameFromBytes(bytes);
    DWORD written = 0;
    const BOOL done =
        WriteConsoleW(HandleOf(target), units.data(), static_cast<DWORD>(units.size()), &written, nullptr);
    return done != 0 ? static_cast<std::ptrdiff_t>(bytes.size()) : -1;
}

bool WaitUntilWritable(OutputStream::Target) {
    return false;
}

#else

bool UnderstandsColors(OutputStream::Target) {
    const char* terminal = std::getenv("TERM");
    return terminal != nullptr && std::string_view(terminal) != "dumb";
}

std::ptrdiff_t WriteSome(OutputStream::Target target, std::string_view bytes) {
    return write(static_cast<int>(target), bytes.data(), bytes.size());
}

bool WaitUntilWritable(OutputStream::Target target) {
    pollfd waiting = {static_cast<int>(target), POLLOUT, 0};
    return poll(&waiting, 1, -1) >= 0 || errno == EINTR;
}

#endif

} // namespace

bool OutputStream::IsTerminal() const {
#ifdef _WIN32
    DWORD mode = 0;
    return GetConsoleMode(HandleOf(target), &mode) != 0;
#else
    return isatty(static_cast<int>(target)) != 0;
#endif
}

bool OutputStream::ShowsColors() const {
    return !IsSet("NO_COLOR") && IsTerminal() && UnderstandsColors(target);
}

void OutputStream::Write(std::string_view text) {
    if (failed) {
        return;
    }
    buffer += text;
    if (buffer.size() >= kBlock) {
        Flush();
    }
}

void OutputStream::Flush() {
    if (!failed && !WriteAll(buffer)) {
        failed = true;
    }
    buffer.clear();
}

bool OutputStream::WriteAll(std::string_view bytes) {
    while (!bytes.empty()) {
        const std::ptrdiff_t count = WriteSome(target, bytes);
        if (count > 0) {
            bytes.remove_prefix(static_cast<std::size_t>(count));
            continue;
        }
        const bool wouldBlock = count < 0 && (errno == EAGAIN || errno == EWOULDBLOCK) && WaitUntilWritable(target);
        if (count == 0 || (errno != EINTR && !wouldBlock)) {
            // Whoever stops reading has seen enough.
            problem = count < 0 && errno == EPIPE ? "" : std::generic_category().message(errno);
            return false;
        }
    }
    return true;
}

} // namespace Vorn
