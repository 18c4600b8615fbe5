#pragma once

#include <string_view>

namespace Vorn {

// Copies a save game and stamps the byte at offset 4, where an old save holds the lowest byte of its version. A shorter
// save is filled with zeros up to there; an empty or missing one gives an empty copy. Reports nothing.
void StampSaveGame(std::u16string_view source, std::u16string_view destination);

} // namespace Vorn
