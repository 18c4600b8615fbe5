#pragma once

#include "engine/archive/archive.h"
#include "engine/file/file.h"
#include "engine/string/ascii.h"
#include "engine/string/numbertext.h"
#include "engine/string/utf8.h"

namespace Vorn {

// A line of a text archive on its way into a file, built in the file's own buffer. A line longer than its capacity is
// cut at the end, with the check "! FAILED( hr )".
class TextLine {
public:
    // Units of a line without its indentation, terminator included.
    static constexpr int kCapacity = 1024;

    TextLine(File& _file, int _indentation, Label label) : file(_file), indentation(_indentation) {
        start = cursor = file.BeginLine(indentation, kRoom);
        Text(label);
    }
    TextLine(const TextLine&) = delete;
    TextLine& operator=(const TextLine&) = delete;

    // One text beside the label; each counts only as far as it alone would fill the line.
    TextLine& Text(std::u16string_view text) {
        text = text.substr(0, kCapacity);
        if (NarrowAscii(text.data(), text.size(), cursor)) [[likely]] {
            return Put(cursor + text.size());
        }
        return PutEncoded(text);
    }
    template <std::size_t N>
    TextLine& Literal(const char (&text)[N]) {
        std::memcpy(cursor, text, N - 1);
        return Put(cursor + N - 1);
    }
    TextLine& Int(std::int32_t value) { return Put(PutInt(cursor, value)); }
    TextLine& Int64(std::int64_t value) { return Put(PutInt64(cursor, value)); }
    TextLine& Hex(std::uint32_t value) { return Put(PutHex(cursor, value)); }
    TextLine& Float(float value) { return Put(PutFixed6(cursor, value)); }
    TextLine& Double(double value, int places = 6) { return Put(PutFixed(cursor, value, places)); }

    // Ends the line and hands it to the file.
    void End() {
        if (cursor - start - extraBytes >= kCapacity || hasLineFeed) [[unlikely]] {
            EndLong();
            return;
        }
        std::memcpy(cursor, "\r\n", 2);
        file.CommitLine(cursor + 2);
    }

private:
    static constexpr std::size_t kRoom = (2 * kMaxUtf8PerUnit) * kCapacity + 2 * kNumberTextCapacity;

    TextLine& Put(char* end) {
        cursor = end;
        return *this;
    }
    TextLine& PutEncoded(std::u16string_view text);
    void EndLong();

    File& file;
    int indentation;
    char* start;
    char* cursor;
    // Bytes over one for each unit so far.
    std::ptrdiff_t extraBytes = 0;
    bool hasLineFeed = false;
};

} // namespace Vorn
