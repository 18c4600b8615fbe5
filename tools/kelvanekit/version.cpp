#include "tools/kelvanekit/version.h"

#include "tools/version.h"

namespace Vorn {

const char* const kVersion = KELVANE_VERSION;

} // namespace Vorn
