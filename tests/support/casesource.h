#pragma once

#include "tests/support/casefile.h"

#include <string>
#include <vector>

namespace Vorn {

// The header of a file of a version, or of an old file for "none".
std::string Header(bool isBinary, const std::string& version);

// The header of the files that are written now.
std::string CurrentHeader(bool isBinary);

// A text file in the version that is written now. Contents keep the version that they were made in.
std::string InCurrentVersion(std::string_view text);

// The bytes of each line in a file.
std::vector<std::string> FieldsOf(bool isBinary, const Lines& lines);
std::string Joined(const std::vector<std::string>& fields);

// The lines of a text file.
Lines SplitFields(std::string_view text);

// The bytes of a text with \r, \n, \t, \0, \\, \xHH and \xHH*N in it, which is N times the byte.
std::string Unescaped(std::string_view text);

// A text source as the reports of missing keys see it.
struct SourceLines {
    // All lines, without their ends; the first ones are the header and the version.
    Lines lines;
    std::size_t headerLines = 0;
    bool lastLineEnds = true;

    Lines Content() const;

    // What is reported for a key that is missing while the line `waiting`, or the last one, waits to be read.
    std::string MissingReport(std::string_view key, std::size_t lineNumber, std::size_t waiting) const;
};

// Edits that are different in the source and in the result:
//   bare KEY...        the source has only the lines with these keys, and all others are blank in the result
//   overfill N PATH... texts of N + 1 letters, which are cut to N
bool IsOfTwoParts(const Edit& edit);
Edit SourcePart(const Edit& edit);
Edit ResultPart(const Edit& edit);

// Whether a case has a source in that form. A damaged source exists in one form alone, one of an older version in both.
bool HasSource(const Case& tested, bool isBinary);
bool HasEdit(const Case& tested, std::string_view verb);

// The content that a case starts from.
const Lines& BaseOf(const CaseFile& file, const Case& tested);

// The source of a case: its lines, and the bytes of the file. These edits change the source alone:
//   binary                the binary form, else the text form alone
//   version N|none        the version in the header
//   header BYTES          all before the first field
//   bytes PATH BYTES      the bytes of one line, with its end
//   cut PATH[+N]          the file ends before a line, or N bytes after that
//   append BYTES          more at the end
//   encoding NAME         utf16-little, utf16-big, or plain: without a mark, with line feeds alone
//   whole BYTES           the whole file
class Source {
public:
    Source(const Case& tested, Lines _lines, bool _isBinary);

    const std::string& Bytes() const { return bytes; }
    SourceLines AsLines() const;

private:
    void EditBytes(const Edit& edit, std::vector<std::string>& fields);

    Lines lines;
    const bool isBinary;
    std::string header;
    std::optional<std::string> whole;
    std::string encoding;
    std::string bytes;
};

} // namespace Vorn
