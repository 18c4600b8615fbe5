#include "engine/archive/textline.h"

#include "engine/core/report.h"
#include "engine/string/utf8.h"

#include <algorithm>
#include <string>

namespace Vorn {

TextLine& TextLine::PutEncoded(std::u16string_view text) {
    char* end = EncodeUtf8(cursor, text);
    extraBytes += end - cursor - static_cast<std::ptrdiff_t>(text.size());
    hasLineFeed = hasLineFeed || text.find(u'\n') != std::u16string_view::npos;
    return Put(end);
}

// The road of lines that are too long or have line feeds inside: back to units, cut, and printed as text.
void TextLine::EndLong() {
    const std::u16string whole = NameFromBytes({start, static_cast<std::size_t>(cursor - start)});
    const std::u16string_view line = std::u16string_view(whole).substr(0, kCapacity - 1);
    CheckAssert(line.size() == whole.size(), "! FAILED( hr )");
    file.PrintText(std::u16string(static_cast<std::size_t>(std::max(indentation, 0)), u'\t'));
    file.PrintText(line);
    file.PrintText(u"\n");
}

} // namespace Vorn
