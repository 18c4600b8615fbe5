#include "engine/core/reporting.h"

#include "engine/core/debugoutput.h"

#include <algorithm>
#include <string>

namespace Vorn {

constinit thread_local Reporting g_Reporting;

namespace {

constinit thread_local std::uint64_t g_ReportCost = 0;

// The buffer of a report.
struct ReportText {
    std::u16string_view View() const { return units; }
    StringBuffer Buffer() { return {units, kReportCapacity}; }

    char16_t units[kReportCapacity];
};

constexpr int kPositionWidth = 50;

// The bytes of a text in UTF-8, where each half of a surrogate pair has two.
std::uint64_t CountBytes(std::u16string_view text) {
    std::uint32_t count = 0;
    for (const char16_t unit : text) {
        count += 1U + (unit >= 0x80) + (unit >= 0x800) - ((unit & 0xF800) == 0xD800);
    }
    return count;
}

void CountReport(const ReportText& text) {
    constexpr std::uint64_t kBytesPerCost = 256;
    g_ReportCost += 1 + CountBytes(text.View()) / kBytesPerCost;
}

// Removes each ".." with the folder before it and converts slashes to backslashes.
std::string ShortenPath(std::string_view path) {
    std::string result;
    while (!path.empty()) {
        const std::size_t end = std::min(path.find('/'), path.size());
        const std::string_view step = path.substr(0, end);
        path.remove_prefix(std::min(end + 1, path.size()));
        if (step == ".." && !result.empty()) {
            const std::size_t folder = result.rfind('\\');
            result.erase(folder == std::string::npos ? 0 : folder);
            continue;
        }
        if (!result.empty()) {
            result += '\\';
        }
        result += step;
    }
    return result;
}

void LogText(const ReportText& text) {
    WriteDebugOutput(text.units);
    if (g_Reporting.log != nullptr) {
        g_Reporting.log->Add(text.View());
    }
}

void LogTextWithPosition(const ReportText& text, const char* file, int line) {
    ReportText position;
    Format(position.Buffer(), u"%s(%d)", ShortenPath(file).c_str(), line);
    ReportText whole;
    Format(whole.Buffer(), u"%-*s: %s", kPositionWidth, position, text);
    LogText(whole);
}

// The answer is 0 without a message handler.
template <class... Arguments>
int ShowMessage(const char16_t* title, const char16_t* format, const Arguments&... arguments) {
    if (g_Reporting.messageHandler == nullptr) {
        return 0;
    }
    ReportText text;
    Format(text.Buffer(), format, arguments...);
    ReportText shown;
    Format(shown.Buffer(), u"%s\n", text);
    return g_Reporting.messageHandler->Show(title, shown.View());
}

} // namespace

std::uint64_t GetReportCost() {
    return g_ReportCost;
}

void ReportFailedCheck(const char* expression, SourcePosition position) {
    if (!g_Reporting.debugChecksOff && !IsDebuggerAttached()) {
        ReportAssert(position.file, position.line, expression);
    }
}

void ReportAssert(const char* file, int line, const char* expression) {
    ReportText text;
    if (g_Reporting.reportHandler != nullptr) {
        Format(text.Buffer(), u"%s", expression);
        CountReport(text);
        g_Reporting.reportHandler->Handle(file, line, text.View(), true);
        return;
    }
    Format(text.Buffer(), u"assert! [%s]\n", expression);
    CountReport(text);
    LogTextWithPosition(text, file, line);
    if (g_Reporting.suppressAssertDialogs) {
        return;
    }
    constexpr int kNoFurtherDialogs = 1;
    if (ShowMessage(u"Assert", u"Assert @ %s(%d)\n\n%s", file, line, expression) == kNoFurtherDialogs) {
        g_Reporting.suppressAssertDialogs = true;
    }
}

void ReportErrorList(const char16_t* format, std::initializer_list<FormatArgument> arguments) {
    ReportText text;
    FormatList(text.Buffer(), format, arguments);
    CountReport(text);
    if (g_Reporting.reportHandler != nullptr) {
        g_Reporting.reportHandler->Handle("", -1, text.View(), true);
        return;
    }
    LogText(text);
    ShowMessage(u"Error", u"%s", text);
}

void ReportErrorAtList(const FormatAt& format, std::initializer_list<FormatArgument> arguments) {
    ReportText text;
    FormatList(text.Buffer(), format.format, arguments);
    ReportErrorList(text.units, {});
}

void LogLineList(const FormatAt& format, std::initializer_list<FormatArgument> arguments) {
    ReportText text;
    FormatList(text.Buffer(), format.format, arguments);
    CountReport(text);
    if (g_Reporting.reportHandler != nullptr) {
        g_Reporting.reportHandler->Handle(format.position.file, format.position.line, text.View(), false);
        return;
    }
    LogText(text);
}

} // namespace Vorn
