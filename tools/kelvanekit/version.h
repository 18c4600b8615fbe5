#pragma once

namespace Vorn {

// The version of the project.
extern const char* const kVersion;

} // namespace Vorn
