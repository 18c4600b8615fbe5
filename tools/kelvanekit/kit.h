#pragma once

#include <string>
#include <vector>

namespace Vorn {

// Runs the command line behind the program's name, in UTF-8 or the bytes of the platform, and returns the exit status.
int RunKit(std::vector<std::string> arguments);

} // namespace Vorn
