#pragma once

#include "engine/archive/filearchive.h"
#include "engine/core/inlining.h"
#include "engine/string/fixedstring.h"
#include "engine/string/plainscan.h"

namespace Vorn {

// The lines that a text archive reads, and the reports about them. Reading is strictly sequential: the current line
// must begin with the label of the read. If it does not, that is reported, and the next read tries the same line. So a
// missing line causes one report, a superfluous one a report for every field after it.
class TextLines : public FileArchive {
public:
    // Units of a line, terminator included; longer lines are read in pieces.
    static constexpr int kLineCapacity = 1024;

    using FileArchive::FileArchive;

protected:
    // Makes the next line the current one, unless the current one was not used yet. At the end of the file the last
    // line stays.
    void TakeLine();

    // Where the value begins in the next line, after the label. Null, after a report, if the line has another label.
    const char16_t* FindLabel(Label label);

    // The fast path: reads a line directly from the bytes of the file if it begins with the label and continues with
    // what `scan` accepts, all in the form that the archive writes. Returns false for any other line, which is not
    // consumed; FindLabel reads it then.
    template <class Scan>
    bool ReadPlainLine(Label label, Scan scan);

    std::u16string_view CurrentLine() const {
        return {currentLine.Units(), static_cast<std::size_t>(currentLineLength)};
    }

    // From a place in the current line to its end.
    std::u16string_view RestOfLine(const char16_t* place) const;

    void ReportMissingQuote(Label label) const;

private:
    void KeepPlainLine();
    void ReportMissingLabel(Label label) const;

    FixedString<kLineCapacity> currentLine;
    int currentLineLength = 0;
    std::int32_t lineNumber = 0;
    bool m_CurrentLineUnread = false;
    // False while the current line is to be used again, and after an idle read, whose end TakeLine has to notice.
    bool readsPlainLines = true;
    // The start of the line read last, if the fast path read it; it ends at the place of the file. The current line is
    // older then.
    const char* plainLine = nullptr;
};

template <class Scan>
VORN_ALWAYS_INLINE bool TextLines::ReadPlainLine(Label label, Scan scan) {
    static_assert(kLongestPlainLine <= kLineCapacity);
    static_assert(kPlainSlack <= ReadBuffer::kSlack);
    if (!readsPlainLines || !file->HasPlainText()) [[unlikely]] {
        return false;
    }
    const char* start = file->PeekText();
    PlainScanner scanner(start);
    scan(scanner.Tabs().Word(label));
    if (!scanner.LineEnd()) [[unlikely]] {
        return false;
    }
    file->SkipText(scanner.Cursor());
    plainLine = start;
    ++lineNumber;
    return true;
}

} // namespace Vorn
