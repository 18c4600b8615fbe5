#pragma once

#include <cstdio>
#include <span>
#include <string>

namespace Vorn {

// Exit statuses. A recognised type succeeds whatever became of the conversion; only reports tell of damage.
inline constexpr int kSuccess = 0;
inline constexpr int kUsageError = -1;

// Runs one conversion: the arguments behind the program's name are type, source, destination and the optional format.
// What is meant for the user goes to `output`, all reports to the debug output.
int RunKelvane(std::span<const std::u16string> arguments, std::FILE* output);

} // namespace Vorn
