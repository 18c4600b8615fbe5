#pragma once

#include "tools/kelvanekit/check/textreader.h"

namespace Vorn {

// Finds the mends that make the keys of a text agree with the list of fields at the least cost, mistake by mistake: at
// a key that does not fit each likely mistake is undone on trial, and the list of fields runs again to see how far it
// comes. Gives up at damage that would take too long; the mends up to there are the result.
Mends FindMends(ContentKind kind, const SourceText& text, const TextHeader& header);

} // namespace Vorn
