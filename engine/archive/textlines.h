#pragma once

#include "engine/archive/filearchive.h"
#include "engine/core/inlining.h"
#include "engine/string/fixedstring.h"
#include "engine/string/plainscan.h"

namespace Vorn {

// The lines that a text archive reads, and what is reported of them. Reading is strictly sequential: each read demands
// that the current line begins with its label. A label that does not match is reported, and the same line serves the
// next read; so a missing line costs one report, a stray one a report for every field behind it.
class TextLines : public FileArchive {
public:
    // Units of a line, terminator included; longer lines come in pieces.
    static constexpr int kLineCapacity = 1024;

    using FileArchive::FileArchive;

protected:
    // Makes the next line the current one, or the waiting one again. At the end of the file the last one stays.
    void TakeLine();

    // The value behind the label of the next line, or null after a report.
    const char16_t* FindLabel(Label label);

    // Reads a line from the file's bytes if it begins with the label and goes on with what `scan` accepts, all in the
    // form that the archive writes. False for every other line, which stays to be read by FindLabel.
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
    // Not where the current line waits, and not behind an idle read, whose end TakeLine has to see.
    bool readsPlainLines = true;
    // The line read last, up to the place of the file, where it was read from the file's bytes; the current line is
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
