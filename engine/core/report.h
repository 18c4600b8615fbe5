#pragma once

#include <cstdint>

namespace Vorn {

// The place in the source that a check or a report comes from.
struct SourcePosition {
    const char* file;
    int line;

    static constexpr SourcePosition Here(const char* file = __builtin_FILE(), int line = __builtin_LINE()) {
        return {file, line};
    }
};

// What this thread has reported so far, as the work that it makes: 1 for each report and 1 more for each 256 bytes that
// its text has in UTF-8.
std::uint64_t GetReportCost();

// Reports a failed check through the report handler, or on the debug output as "assert! [expression]".
void ReportAssert(const char* file, int line, const char* expression);

// What CheckAssert does with a condition that does not hold.
void ReportFailedCheck(const char* expression, SourcePosition position);

// The debug check: a condition that does not hold is reported with the expression's text as given, and the caller goes
// on. Silent while a debugger is attached.
inline void CheckAssert(bool condition, const char* expression, SourcePosition position = SourcePosition::Here()) {
    if (!condition) [[unlikely]] {
        ReportFailedCheck(expression, position);
    }
}

} // namespace Vorn
