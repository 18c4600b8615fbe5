#pragma once

#include "engine/archive/filearchive.h"
#include "tools/kelvane/contentkind.h"

namespace Vorn {

class Core;

// From one file to another. The name of an entity definition is that of the source.
struct Conversion {
    std::u16string_view source;
    std::u16string_view destination;
    FileArchiveType form;
};

// Prepares a core for conversions.
void SetUpForConversions(Core& core);

// Loads the source, whose form is detected, and writes the destination in the form asked for. What is wrong is reported
// or ends the process abnormally. A definition that cannot be loaded leaves the destination as it is.
void ConvertContent(Core& core, ContentKind kind, const Conversion& conversion);

} // namespace Vorn
