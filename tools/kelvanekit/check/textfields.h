#pragma once

#include "tools/kelvane/contentkind.h"
#include "tools/kelvanekit/check/askedfield.h"

#include <map>

namespace Vorn {

// The fields of a text content in their order, those that are missing among them.
struct TextFields {
    AskedFields asks;
    // What missing fields have, as the text form writes it, by their places among the asks.
    std::map<std::int32_t, std::string> missingValues;

    // The field of a line, counted from 0 and by line feeds; the version is one. kNone if there is none.
    std::int32_t AskAt(std::int32_t line) const;
};

// Reads the fields of a text, with its mistakes mended as a check mends them.
TextFields ReadTextFields(ContentKind kind, std::string_view bytes);

} // namespace Vorn
