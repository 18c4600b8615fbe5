#pragma once

namespace Vorn {

// Writes a report to the debug output: on Windows the debug channel of the platform, with one call; on other platforms
// standard error as UTF-8, with a line end added if there is none, and buffered in a block of 64 KiB. At most
// kReportCapacity - 1 units; a failed write is ignored. May be called by all threads.
void WriteDebugOutput(const char16_t* text);

// Flushes the buffer, as the end of the process does. To be called before anything that may take long, so that reports
// are seen in time.
void FlushDebugOutput();

// Checked again every millisecond, since a debugger may be attached and detached at any time.
bool IsDebuggerAttached();

} // namespace Vorn
