#pragma once

namespace Vorn {

// The debug output, where every report ends: the debug channel of the platform on Windows, one call a report; elsewhere
// standard error as UTF-8, with a line end added to a text that has none. At most kReportCapacity - 1 units; a write
// that fails is ignored. Serves all threads. Elsewhere than on Windows whole reports wait in a block of 64 KiB.
void WriteDebugOutput(const char16_t* text);

// Writes what waits, as the end of the process does: ahead of anything that may take long, so that reports are seen
// when they are made.
void FlushDebugOutput();

// Asked anew every millisecond, since a debugger may come and go.
bool IsDebuggerAttached();

} // namespace Vorn
