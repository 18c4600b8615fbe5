#include "engine/archive/textlines.h"

#include "engine/core/reporting.h"
#include "engine/string/scan.h"

#include <algorithm>
#include <cstring>

namespace Vorn {

static_assert(TextLines::kLineCapacity <= Scanner::kLongestNumber);

void TextLines::TakeLine() {
    KeepPlainLine();
    const bool isFresh = !m_CurrentLineUnread && !file->GetString(currentLine.Buffer(), currentLineLength);
    if (isFresh) {
        EndIdleRead();
    } else {
        CountIdleRead();
    }
    ++lineNumber;
    m_CurrentLineUnread = false;
    readsPlainLines = isFresh;
}

const char16_t* TextLines::FindLabel(Label label) {
    TakeLine();
    const char16_t* start = SkipWhiteSpace(currentLine.Units());
    const auto remaining = static_cast<std::size_t>(currentLine.Units() + kLineCapacity - 1 - start);
    if (label.size() <= remaining && std::memcmp(start, label.data(), label.size() * sizeof(char16_t)) == 0 &&
        IsWhiteSpace(start[label.size()])) [[likely]] {
        return SkipWhiteSpace(start + label.size());
    }
    ReportMissingLabel(label);
    m_CurrentLineUnread = true;
    readsPlainLines = false;
    return nullptr;
}

std::u16string_view TextLines::RestOfLine(const char16_t* place) const {
    return {place, static_cast<std::size_t>(currentLine.Units() + currentLineLength - place)};
}

// Makes the line that was read last the current one, as if TakeLine had read it.
void TextLines::KeepPlainLine() {
    if (plainLine == nullptr) {
        return;
    }
    std::string_view line(plainLine, static_cast<std::size_t>(file->PeekText() - plainLine));
    line.remove_suffix(line.ends_with("\r\n") ? 2 : 1);
    char16_t* units = currentLine.Buffer().m_Buffer;
    char16_t* end = std::copy(line.begin(), line.end(), units);
    *end++ = u'\n';
    *end = u'\0';
    currentLineLength = static_cast<int>(end - units);
    plainLine = nullptr;
}

void TextLines::ReportMissingLabel(Label label) const {
    ReportError(u"Text FileArchive missing Label.\n\nFile: %s\nLabel: %s\nLine Number:%d\nLine Contents:%s\n",
                file->GetName(), label, lineNumber, currentLine);
}

void TextLines::ReportMissingQuote(Label label) const {
    ReportErrorAt(u"\" not found wrapping data string: %s\nFileName: %s\nLine #: %d\nLine Content: %s", label,
                  file->GetName(), lineNumber, currentLine);
}

} // namespace Vorn
