#pragma once

#include "engine/archive/label.h"
#include "engine/file/file.h"
#include "engine/string/ascii.h"
#include "engine/string/numbertext.h"

namespace Vorn {

enum class LineContent : bool {
    // Plain text and short numbers, as in nearly all lines. Anything else makes the line bad, and the line is built
    // again as Any. This keeps the line free of calls, so that it stays in registers.
    Plain,
    Any
};

// A line of a text archive while it is built in the buffer of the file: a label, at most one text beside it, and
// numbers. A line longer than its capacity is cut at the end, with the check "! FAILED( hr )".
template <LineContent kContent>
class TextLine {
public:
    // Units of a line without its indentation, terminator included.
    static constexpr int kCapacity = 1024;

    VORN_ALWAYS_INLINE TextLine(File& _file, int _indentation, Label label)
        : file(_file), indentation(_indentation), start(file.BeginLine(indentation)), cursor(start) {
        Text(label);
    }
    TextLine(const TextLine&) = delete;
    TextLine& operator=(const TextLine&) = delete;

    // One text besides the label; each is read up to the capacity of a line.
    VORN_ALWAYS_INLINE TextLine& Text(std::u16string_view text) {
        if (text.size() > kLongestPlainText || !NarrowAscii(text.data(), text.size(), cursor)) [[unlikely]] {
            return Else([&] { return PutEncoded(text); });
        }
        return Put(cursor + text.size());
    }
    template <std::size_t N>
    VORN_ALWAYS_INLINE TextLine& Literal(const char (&text)[N]) {
        std::memcpy(cursor, text, N - 1);
        return Put(cursor + N - 1);
    }
    VORN_ALWAYS_INLINE TextLine& Int(std::int32_t value) {
        return PlainNumber::FitsInt(value) ? Put(PlainNumber::PutInt(cursor, value))
                                           : Else([&] { return PutInt(cursor, value); });
    }
    VORN_ALWAYS_INLINE TextLine& Float(float value) {
        return PlainNumber::FitsFixed6(value) ? Put(PlainNumber::PutFixed6(cursor, value))
                                              : Else([&] { return PutFixed6(cursor, value); });
    }
    TextLine& Hex(std::uint32_t value) { return Put(PutHex(cursor, value)); }
    TextLine& Int64(std::int64_t value) { return Put(PutInt64(cursor, value)); }
    TextLine& Double(double value, int places = 6) { return Put(PutFixed(cursor, value, places)); }

    // Ends the line and commits it to the file. Returns false for a bad line, which is dropped.
    VORN_ALWAYS_INLINE bool End() {
        if constexpr (kContent == LineContent::Any) {
            if (cursor - start - extraBytes >= kCapacity || hasLineFeed) {
                EndLong();
                return true;
            }
        }
        if (isBad) [[unlikely]] {
            return false;
        }
        std::memcpy(cursor, "\r\n", 2);
        file.CommitLine(cursor + 2);
        return true;
    }

private:
    static constexpr std::size_t kLongestPlainText = 256;
    static constexpr std::size_t kLongestPlainNumber = 32;
    // A plain line always fits: label, text, and four numbers with their separators.
    static_assert(2 * kLongestPlainText + 4 * kLongestPlainNumber < kCapacity);
    static_assert(File::kLineRoom >= 2 * kCapacity * kMaxUtf8PerUnit + 2 * kNumberTextCapacity);

    VORN_ALWAYS_INLINE TextLine& Put(char* end) {
        cursor = end;
        return *this;
    }
    // Puts what is not plain, if such content is allowed.
    template <class PutOther>
    VORN_ALWAYS_INLINE TextLine& Else(PutOther putOther) {
        if constexpr (kContent == LineContent::Any) {
            return Put(putOther());
        }
        isBad = true;
        return *this;
    }
    char* PutEncoded(std::u16string_view text);
    void EndLong();

    File& file;
    int indentation;
    char* start;
    char* cursor;
    bool isBad = false;
    // The bytes so far, less one for each unit.
    std::ptrdiff_t extraBytes = 0;
    bool hasLineFeed = false;
};

} // namespace Vorn
