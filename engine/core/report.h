#pragma once

#include <cstdint>

namespace Vorn {

// The place in the source code of a check or a report.
struct SourcePosition {
    const char* file;
    int line;

    static constexpr SourcePosition Here(const char* file = __builtin_FILE(), int line = __builtin_LINE()) {
        return {file, line};
    }
};

// The cost of what this thread has reported so far: 1 for each report, and 1 more for each 256 bytes of its text in
// UTF-8.
std::uint64_t GetReportCost();

// Reports a failed check through the report handler, or on the debug output as "assert! [expression]".
void ReportAssert(const char* file, int line, const char* expression);

// What CheckAssert does if the condition is false.
void ReportFailedCheck(const char* expression, SourcePosition position);

// The debug check: reports `expression` if the condition is false, and the caller continues. Silent while a debugger is
// attached. The texts of checks are output that people search for: they stay as they are when the code around them
// changes.
inline void CheckAssert(bool condition, const char* expression, SourcePosition position = SourcePosition::Here()) {
    if (!condition) [[unlikely]] {
        ReportFailedCheck(expression, position);
    }
}

} // namespace Vorn
