#pragma once

#include <cstdio>
#include <span>
#include <string>

namespace Vorn {

// Exit statuses. A known type means success, even if the source is damaged; only reports show that.
inline constexpr int kSuccess = 0;
inline constexpr int kUsageError = -1;

// Runs one conversion. The arguments are type, source, destination and the optional format. Messages for the user go to
// `output`, all reports to the debug output.
int RunKelvane(std::span<const std::u16string> arguments, std::FILE* output);

} // namespace Vorn
