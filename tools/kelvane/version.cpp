#include "tools/version.h"

// The converter has no option for its version: `strings kelvane | grep '^kelvane '` finds it in the file.
#ifdef __GNUC__
__attribute__((used))
#endif
static constexpr char kIdentification[] = "kelvane " KELVANE_VERSION;
