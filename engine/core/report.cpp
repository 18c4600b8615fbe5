#include "engine/core/reporting.h"

#include "engine/core/debugoutput.h"
#include "engine/file/file.h"

#include <string>

namespace Vorn {

constinit thread_local Reporting g_Reporting;

namespace {

using ReportText = FixedString<kReportCapacity>;

constexpr int kPositionWidth = 50;

// Takes out each ".." step with the folder before it and turns slashes into backslashes.
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
    WriteDebugOutput(text.Units());
    if (g_Reporting.logFile != nullptr) {
        g_Reporting.logFile->Print(u"%s", text);
    }
}

void LogTextWithPosition(const ReportText& text, const char* file, int line) {
    ReportText position;
    Format(position.Buffer(), u"%s(%d)", ShortenPath(file).c_str(), line);
    ReportText whole;
    Format(whole.Buffer(), u"%-*s: %s", kPositionWidth, position, text);
    LogText(whole);
}

int ShowMessage(const char16_t* title, const ReportText& text) {
    if (g_Reporting.messageHandler == nullptr) {
        return 0;
    }
    ReportText shown = text;
    Append(shown.Buffer(), u"\n");
    return g_Reporting.messageHandler->Show(title, shown.View());
}

} // namespace

void ReportFailedCheck(const char* expression, SourcePosition position) {
    if (!g_Reporting.debugChecksOff && !IsDebuggerAttached()) {
        ReportAssert(position.file, position.line, expression);
    }
}

void ReportAssert(const char* file, int line, const char* expression) {
    ReportText text;
    if (g_Reporting.reportHandler != nullptr) {
        Format(text.Buffer(), u"%s", expression);
        g_Reporting.reportHandler->Handle(file, line, text.View(), true);
        return;
    }
    Format(text.Buffer(), u"assert! [%s]\n", expression);
    LogTextWithPosition(text, file, line);
    if (g_Reporting.suppressAssertDialogs) {
        return;
    }
    Format(text.Buffer(), u"Assert @ %s(%d)\n\n%s", file, line, expression);
    constexpr int kNoFurtherDialogs = 1;
    if (ShowMessage(u"Assert", text) == kNoFurtherDialogs) {
        g_Reporting.suppressAssertDialogs = true;
    }
}

void ReportErrorList(const char16_t* format, std::initializer_list<FormatArgument> arguments) {
    ReportText text;
    FormatList(text.Buffer(), format, arguments);
    if (g_Reporting.reportHandler != nullptr) {
        g_Reporting.reportHandler->Handle("", -1, text.View(), true);
        return;
    }
    LogText(text);
    ShowMessage(u"Error", text);
}

void ReportErrorAtList(const FormatAt& format, std::initializer_list<FormatArgument> arguments) {
    ReportText text;
    FormatList(text.Buffer(), format.format, arguments);
    ReportErrorList(text.Units(), {});
}

void LogLineList(const FormatAt& format, std::initializer_list<FormatArgument> arguments) {
    ReportText text;
    FormatList(text.Buffer(), format.format, arguments);
    if (g_Reporting.reportHandler != nullptr) {
        g_Reporting.reportHandler->Handle(format.position.file, format.position.line, text.View(), false);
        return;
    }
    LogText(text);
}

} // namespace Vorn
