#include "engine/archive/textline.h"

#include "engine/core/report.h"
#include "engine/string/utf8.h"

#include <algorithm>
#include <string>

namespace Vorn {

template <LineContent kContent>
char* TextLine<kContent>::PutEncoded(std::u16string_view text) {
    text = text.substr(0, kCapacity);
    char* end = EncodeUtf8(cursor, text);
    extraBytes += end - cursor - static_cast<std::ptrdiff_t>(text.size());
    hasLineFeed = hasLineFeed || text.find(u'\n') != std::u16string_view::npos;
    return end;
}

// A line that is too long or contains line feeds is converted back to units, cut, and printed as text.
template <LineContent kContent>
void TextLine<kContent>::EndLong() {
    const std::u16string whole = NameFromBytes({start, static_cast<std::size_t>(cursor - start)});
    const std::u16string_view line = std::u16string_view(whole).substr(0, kCapacity - 1);
    CheckAssert(line.size() == whole.size(), "! FAILED( hr )");
    file.PrintText(std::u16string(static_cast<std::size_t>(std::max(indentation, 0)), u'\t'));
    file.PrintText(line);
    file.PrintText(u"\n");
}

template class TextLine<LineContent::Any>;

} // namespace Vorn
