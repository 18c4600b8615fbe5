#pragma once

#include "engine/file/filebuffer.h"

#include <optional>

namespace Vorn {

// What ReadLine found: nothing at the end of the file, a line with a line feed, or a line without one.
enum class LineKind { None, Whole, Open };

// Reads a text file line by line as 16-bit code units. A byte-order mark selects UTF-8 or UTF-16; without one it is
// UTF-8. CR LF is read as one line feed. Malformed input is no failure: each malformed part is read as U+FFFD.
class LineReader {
public:
    explicit LineReader(ReadBuffer& _input) : input(_input) {}

    // Reads up to and including the next line feed, at most capacity - 1 units, and adds the terminator. At the end of
    // the file the line keeps its content. A line with U+0000 in it ends there and counts as open. `length` is the
    // number of units before that.
    LineKind ReadLine(char16_t* line, int capacity, int& length);

    // Whether the next unit begins with the next byte of a UTF-8 file.
    bool StandsAtByte() const { return standsAtByte; }

private:
    enum class Encoding { Unknown, Utf8, Utf16Little, Utf16Big };

    void DetectEncoding();
    bool ReadPlainLine(char16_t* line, std::size_t limit, int& length);
    std::optional<char16_t> NextUnit();
    std::optional<char16_t> DecodeUnit();
    std::optional<char16_t> DecodeUtf8Unit();
    std::optional<char16_t> DecodeUtf16Unit();

    ReadBuffer& input;
    Encoding encoding = Encoding::Unknown;
    // The unit after a carriage return that is not part of a line end.
    std::optional<char16_t> heldBack;
    std::optional<char16_t> lowSurrogate;
    bool standsAtByte = false;
};

} // namespace Vorn
