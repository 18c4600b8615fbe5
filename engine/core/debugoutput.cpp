#include "engine/core/debugoutput.h"

#include "engine/core/encodeutf8.h"
#include "engine/core/reporting.h"

#ifdef _WIN32
#include <windows.h>
#else
#include <atomic>
#include <cerrno>
#include <chrono>
#include <cstdlib>
#include <cstring>
#include <fcntl.h>
#include <mutex>
#include <poll.h>
#include <unistd.h>
#endif

namespace Vorn {

#ifdef _WIN32

void WriteDebugOutput(const char16_t* text) {
    OutputDebugStringW(reinterpret_cast<const wchar_t*>(text));
}

void FlushDebugOutput() {}

bool IsDebuggerAttached() {
    return IsDebuggerPresent() != 0;
}

#else

namespace {

// Retries after an interruption by a signal, and waits if the write would block.
void WriteToStandardError(const char* bytes, std::size_t count) {
    while (count > 0) {
        const ssize_t written = write(STDERR_FILENO, bytes, count);
        if (written > 0) {
            bytes += written;
            count -= static_cast<std::size_t>(written);
        } else if (written == 0 || (errno != EINTR && errno != EAGAIN && errno != EWOULDBLOCK)) {
            return;
        } else if (errno != EINTR) {
            pollfd standardError = {STDERR_FILENO, POLLOUT, 0};
            poll(&standardError, 1, -1);
        }
    }
}

// Reports that are not written yet. Only whole reports are written, so that those of several processes do not mix, as
// far as the platform allows.
class ReportBlock {
public:
    constexpr ReportBlock() = default;
    ReportBlock(const ReportBlock&) = delete;
    ReportBlock& operator=(const ReportBlock&) = delete;
    // What is reported after this, while the process ends, is written at once.
    ~ReportBlock() {
        hasEnded = true;
        Flush();
    }

    void Add(std::u16string_view text) {
        const std::lock_guard lock(mutex);
        if (sizeof bytes - used < kLongest) {
            WriteOut();
        }
        char* start = bytes + used;
        char* end = EncodeUtf8(start, text);
        if (end == start || end[-1] != '\n') {
            *end++ = '\n';
        }
        used = static_cast<std::size_t>(end - bytes);
        if (hasEnded) {
            WriteOut();
        }
    }

    void Flush() {
        if (used != 0) {
            const std::lock_guard lock(mutex);
            WriteOut();
        }
    }

private:
    static constexpr std::size_t kLongest = std::size_t{kReportCapacity} * kMaxUtf8PerUnit + 1;

    void WriteOut() { WriteToStandardError(bytes, used.exchange(0)); }

    std::mutex mutex;
    std::atomic<std::size_t> used = 0;
    bool hasEnded = false;
    char bytes[65536] = {};
};

constinit ReportBlock g_ReportBlock;

// A debugger appears in the status of the process as a process number other than 0. The file stays open for the next
// call.
bool HasTracer() {
    static const int status = open("/proc/self/status", O_RDONLY | O_CLOEXEC);
    char text[2048];
    const ssize_t count = pread(status, text, sizeof text - 1, 0);
    text[count > 0 ? count : 0] = '\0';
    constexpr const char* kField = "TracerPid:";
    const char* field = std::strstr(text, kField);
    return field != nullptr && std::strtol(field + std::strlen(kField), nullptr, 10) != 0;
}

} // namespace

void WriteDebugOutput(const char16_t* text) {
    g_ReportBlock.Add(text);
}

void FlushDebugOutput() {
    g_ReportBlock.Flush();
}

// To ask the platform costs microseconds, and a damaged file may fail a million checks.
bool IsDebuggerAttached() {
    using Clock = std::chrono::steady_clock;
    constexpr std::chrono::milliseconds kWorthAsking(1);
    static thread_local Clock::time_point askedAt;
    static thread_local bool hasTracer;
    const Clock::time_point now = Clock::now();
    if (now - askedAt >= kWorthAsking) {
        askedAt = now;
        hasTracer = HasTracer();
    }
    return hasTracer;
}

#endif

} // namespace Vorn
