#include "engine/core/debugoutput.h"

#include "engine/core/reporting.h"
#include "engine/string/utf8.h"

#ifdef _WIN32
#include <windows.h>
#else
#include <cstdlib>
#include <cstring>
#include <fcntl.h>
#include <unistd.h>
#endif

namespace Vorn {

#ifdef _WIN32

void WriteDebugOutput(const char16_t* text) {
    OutputDebugStringW(reinterpret_cast<const wchar_t*>(text));
}

bool IsDebuggerAttached() {
    return IsDebuggerPresent() != 0;
}

#else

void WriteDebugOutput(const char16_t* text) {
    char bytes[kReportCapacity * kMaxUtf8PerUnit + 1];
    char* end = EncodeUtf8(bytes, TextIn(text, kReportCapacity));
    if (end == bytes || end[-1] != '\n') {
        *end++ = '\n';
    }
    [[maybe_unused]] const ssize_t written = write(STDERR_FILENO, bytes, static_cast<std::size_t>(end - bytes));
}

// A tracer shows in the process status as a process number other than 0. The status stays open, since a damaged file
// may fail a million checks, and each asks anew.
bool IsDebuggerAttached() {
    static const int status = open("/proc/self/status", O_RDONLY | O_CLOEXEC);
    char text[2048];
    const ssize_t count = pread(status, text, sizeof text - 1, 0);
    text[count > 0 ? count : 0] = '\0';
    constexpr const char* kField = "TracerPid:";
    const char* field = std::strstr(text, kField);
    return field != nullptr && std::strtol(field + std::strlen(kField), nullptr, 10) != 0;
}

#endif

} // namespace Vorn
