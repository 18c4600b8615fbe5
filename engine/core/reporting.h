#pragma once

#include "engine/core/format.h"
#include "engine/core/report.h"

namespace Vorn {

// Units of a report's text, terminator included; a longer text is cut.
inline constexpr int kReportCapacity = 4096;

// Gets all reports instead of the debug output if it is set: file and line of the place ("" and -1 for a report without
// one), the text, and whether it is a failure and not a logged line.
class ReportHandler {
public:
    virtual ~ReportHandler() = default;
    virtual void Handle(const char* file, int line, std::u16string_view text, bool isFailure) = 0;
};

// Shows a message to the user and returns the answer; 1 means "no further dialogs for failed checks".
class MessageHandler {
public:
    virtual ~MessageHandler() = default;
    virtual int Show(std::u16string_view title, std::u16string_view text) = 0;
};

// Keeps a copy of what is reported.
class ReportLog {
public:
    virtual ~ReportLog() = default;
    virtual void Add(std::u16string_view text) = 0;
};

// Where the reports of a thread go. The converter sets none of this, so that all reports go to the debug output alone.
struct Reporting {
    ReportHandler* reportHandler = nullptr;
    MessageHandler* messageHandler = nullptr;
    ReportLog* log = nullptr;
    bool suppressAssertDialogs = false;
    bool debugChecksOff = false;
};

extern constinit thread_local Reporting g_Reporting;

// A format together with its place in the source code.
struct FormatAt {
    FormatAt(const char16_t* _format, SourcePosition _position = SourcePosition::Here())
        : format(_format), position(_position) {}

    const char16_t* format;
    SourcePosition position;
};

void ReportErrorList(const char16_t* format, std::initializer_list<FormatArgument> arguments);
void ReportErrorAtList(const FormatAt& format, std::initializer_list<FormatArgument> arguments);
void LogLineList(const FormatAt& format, std::initializer_list<FormatArgument> arguments);

// The report of a failed operation.
template <class... Arguments>
void ReportError(const char16_t* format, const Arguments&... arguments) {
    ReportErrorList(format, {FormatArgument(arguments)...});
}

// The same from a known place, which is not shown. The finished text is formatted once more without arguments, so that
// "%%" in an argument becomes "%".
template <class... Arguments>
void ReportErrorAt(const FormatAt& format, const Arguments&... arguments) {
    ReportErrorAtList(format, {FormatArgument(arguments)...});
}

// A line for the log.
template <class... Arguments>
void LogLine(const FormatAt& format, const Arguments&... arguments) {
    LogLineList(format, {FormatArgument(arguments)...});
}

} // namespace Vorn
