#pragma once

#include "tools/kelvane/contentkind.h"
#include "tools/kelvanekit/check/contentcheck.h"
#include "tools/kelvanekit/check/textfields.h"

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace Vorn {

// What the characters of a position are counted in.
enum class PositionUnits : std::uint8_t { Utf16, Utf8 };

// A place in a text as editors count: the line and the units in front of it in the line, both from 0.
struct Position {
    std::int32_t line = 0;
    std::int32_t character = 0;
};

// Finds places of a text. A line ends with a line feed, a carriage return, or both.
class LineIndex {
public:
    explicit LineIndex(std::string_view text);

    std::int32_t LineCount() const { return static_cast<std::int32_t>(starts.size()); }
    // The line without its end; empty behind the last.
    std::string_view Line(std::string_view text, std::int32_t line) const;
    std::size_t Start(std::int32_t line) const { return starts[static_cast<std::size_t>(line)]; }

    // The position of a byte, and the byte of a position. What lies behind the end of a line or of the text is its end.
    Position PositionOf(std::string_view text, std::size_t byte, PositionUnits units) const;
    std::size_t ByteOf(std::string_view text, Position position, PositionUnits units) const;

private:
    std::vector<std::size_t> starts;
};

// A content that is open in an editor.
class TextDocument {
public:
    TextDocument(ContentKind _kind, std::string _text);

    ContentKind Kind() const { return kind; }
    std::string_view Text() const { return text; }
    const LineIndex& Lines() const { return lines; }

    // Puts a text in place of the bytes from `begin` up to `end`.
    void Replace(std::size_t begin, std::size_t end, std::string_view replacement);
    void SetText(std::string _text);

    // What a check of the text finds, and the fields that it reads. Both are made once for every change, the findings
    // also after ForgetFindings. Names are looked up in `names`, which may be null.
    const Findings& GetFindings(const KnownNames* names);
    const TextFields& Fields();
    void ForgetFindings() { findings.reset(); }

    // The number that the client gives to the text; nothing if it gives none.
    std::optional<std::int32_t> Version() const { return version; }
    void SetVersion(std::optional<std::int32_t> _version) { version = _version; }

    // Where lines begin as a check counts them, which end with line feeds alone.
    std::size_t CheckedLineStart(std::int32_t line) const;
    // The checked line of a byte, from 0.
    std::int32_t CheckedLineAt(std::size_t byte) const;

private:
    void FindLines();

    ContentKind kind;
    std::string text;
    std::optional<std::int32_t> version;
    LineIndex lines;
    std::vector<std::size_t> checkedStarts;
    std::optional<Findings> findings;
    std::optional<TextFields> fields;
};

} // namespace Vorn
