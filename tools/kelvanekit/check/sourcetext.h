#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace Vorn {

// A part of a line in bytes from its start.
struct TextRange {
    std::int32_t begin = 0;
    std::int32_t end = 0;
};

// The bytes of a text file as lines of UTF-8, with the room behind them that PlainScanner needs. UTF-16 is converted;
// half of a surrogate pair and an odd byte at the end become malformed UTF-8.
class SourceText {
public:
    explicit SourceText(std::string_view bytes);

    // Where the first line begins, behind a byte-order mark.
    const char* Start() const { return start; }
    const char* End() const { return end; }

    // Lines are counted from 0. The first use of one of these finds the lines. A file without a line feed at its end
    // has its last line all the same.
    std::int32_t LineCount() const;
    // Without its end.
    std::string_view Line(std::int32_t line) const;
    const char* LineStart(std::int32_t line) const { return lineStarts[static_cast<std::size_t>(line)]; }

private:
    void Take(std::string_view bytes);
    void TakeUtf16(std::string_view bytes, bool little);

    std::unique_ptr<char[]> text;
    const char* start = nullptr;
    const char* end = nullptr;
    // One more than there are lines.
    mutable std::vector<const char*> lineStarts;
};

// The white space in front of a line.
std::int32_t IndentationOf(std::string_view line);

// The text up to the next white space behind the indentation.
std::string_view KeyOf(std::string_view line);

// What a line is that no content has, by its key: a comment of other languages, or the marks that a merge leaves around
// lines it could not decide on.
enum class Remark { None, Comment, MergeBegin, MergeMiddle, MergeEnd };
Remark RemarkOf(std::string_view key);

// A text with its capitals as small letters.
std::string Lowered(std::string_view text);

// A text without the white space at its ends.
std::string_view Trimmed(std::string_view text);

// Whether a key in UTF-8 is that of a field.
bool IsLabel(std::string_view key, std::u16string_view label);

// A text as messages show it.
std::string Quoted(std::string_view text);
std::string Quoted(std::u16string_view text);

std::u16string ToUnits(std::string_view utf8);
std::string ToUtf8(std::u16string_view units);

} // namespace Vorn
