#pragma once

#include "engine/archive/archive.h"
#include "engine/file/file.h"
#include "engine/string/ascii.h"
#include "engine/string/numbertext.h"

namespace Vorn {

// A line as nearly all are: a label of plain text and numbers of a few digits, which always fit. A step that meets
// anything else makes the line bad, and the caller builds it again as TextLine.
class PlainLine {
public:
    // A place from File::BeginPlainLine.
    explicit PlainLine(char* start) : cursor(start) {}

    VORN_ALWAYS_INLINE PlainLine& Text(std::u16string_view text) {
        if (text.size() > kLongestText || !NarrowAscii(text.data(), text.size(), cursor)) [[unlikely]] {
            return Fail();
        }
        return Put(cursor + text.size());
    }
    template <std::size_t N>
    VORN_ALWAYS_INLINE PlainLine& Literal(const char (&text)[N]) {
        std::memcpy(cursor, text, N - 1);
        return Put(cursor + N - 1);
    }
    VORN_ALWAYS_INLINE PlainLine& Int(std::int32_t value) {
        return PlainNumber::FitsInt(value) ? Put(PlainNumber::PutInt(cursor, value)) : Fail();
    }
    VORN_ALWAYS_INLINE PlainLine& Hex(std::uint32_t value) { return Put(PutHex(cursor, value)); }
    VORN_ALWAYS_INLINE PlainLine& Float(float value) {
        return PlainNumber::FitsFixed6(value) ? Put(PlainNumber::PutFixed6(cursor, value)) : Fail();
    }

    // Ends the line and returns where, or null for a bad one.
    VORN_ALWAYS_INLINE char* End() { return isGood ? Literal("\r\n").cursor : nullptr; }

private:
    static constexpr std::size_t kLongestText = 256;

    VORN_ALWAYS_INLINE PlainLine& Put(char* end) {
        cursor = end;
        return *this;
    }
    VORN_ALWAYS_INLINE PlainLine& Fail() {
        isGood = false;
        return *this;
    }

    char* cursor;
    bool isGood = true;
};

// A line of a text archive on its way into a file, built in the file's own buffer. A line longer than its capacity is
// cut at the end, with the check "! FAILED( hr )".
class TextLine {
public:
    // Units of a line without its indentation, terminator included.
    static constexpr int kCapacity = 1024;

    TextLine(File& _file, int _indentation, Label label)
        : file(_file), indentation(_indentation), start(file.BeginLine(indentation)), cursor(start) {
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
    static_assert(File::kLineRoom >= 2 * kCapacity * kMaxUtf8PerUnit + 2 * kNumberTextCapacity);

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
