#pragma once

namespace Vorn {

// The debug output, last stop of every report: the platform's debug channel on Windows, elsewhere standard error as
// UTF-8, one write a report, with a line end added to a text that has none. At most kReportCapacity - 1 units; a write
// that fails is ignored.
void WriteDebugOutput(const char16_t* text);

// Asked anew at each call, since a debugger may come and go.
bool IsDebuggerAttached();

} // namespace Vorn
