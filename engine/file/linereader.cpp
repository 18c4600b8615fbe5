#include "engine/file/linereader.h"

#include "engine/string/ascii.h"
#include "engine/string/stringlibrary.h"
#include "engine/string/utf8.h"

#include <algorithm>
#include <string_view>
#include <utility>

namespace Vorn {

namespace {
constexpr std::size_t kLongestUtf8 = 4;
static_assert(kWidenBlock <= ReadBuffer::kSlack);
} // namespace

void LineReader::DetectEncoding() {
    encoding = Encoding::Utf8;
    standsAtByte = true;
    input.Ensure(3);
    const std::string_view start(reinterpret_cast<const char*>(input.Cursor()), input.Available());
    if (start.starts_with("\xEF\xBB\xBF")) {
        input.Skip(3);
    } else if (start.starts_with("\xFF\xFE")) {
        encoding = Encoding::Utf16Little;
        standsAtByte = false;
        input.Skip(2);
    } else if (start.starts_with("\xFE\xFF")) {
        encoding = Encoding::Utf16Big;
        standsAtByte = false;
        input.Skip(2);
    }
}

LineKind LineReader::ReadLine(char16_t* line, int capacity, int& length) {
    if (encoding == Encoding::Unknown) {
        DetectEncoding();
    }
    const auto limit = static_cast<std::size_t>(capacity - 1);
    if (ReadPlainLine(line, limit, length)) {
        return LineKind::Whole;
    }
    std::size_t count = 0;
    std::optional<char16_t> unit;
    while (count < limit && unit != u'\n' && (unit = NextUnit())) {
        line[count++] = *unit;
    }
    standsAtByte = encoding == Encoding::Utf8 && !heldBack && !lowSurrogate;
    if (count == 0) {
        return LineKind::None;
    }
    line[count] = u'\0';
    length = static_cast<int>(TextIn(line, capacity).size());
    return length > 0 && line[length - 1] == u'\n' ? LineKind::Whole : LineKind::Open;
}

// The fast path for a line of plain text that is complete in the buffer. If it returns false, nothing was read.
bool LineReader::ReadPlainLine(char16_t* line, std::size_t limit, int& length) {
    if (!StandsAtByte() || limit <= kWidenBlock) {
        return false;
    }
    input.Ensure(limit);
    std::size_t count = WidenUntil(input.Cursor(), std::min(limit - kWidenBlock, input.Available()), line, '\n');
    if (count == 0) {
        return false;
    }
    input.Skip(count);
    if (count >= 2 && line[count - 2] == u'\r') {
        line[--count - 1] = u'\n';
    }
    line[count] = u'\0';
    length = static_cast<int>(count);
    return true;
}

std::optional<char16_t> LineReader::NextUnit() {
    const std::optional<char16_t> unit = heldBack ? std::exchange(heldBack, std::nullopt) : DecodeUnit();
    if (unit != u'\r') {
        return unit;
    }
    const std::optional<char16_t> next = DecodeUnit();
    if (next == u'\n') {
        return next;
    }
    heldBack = next;
    return unit;
}

std::optional<char16_t> LineReader::DecodeUnit() {
    return encoding == Encoding::Utf8 ? DecodeUtf8Unit() : DecodeUtf16Unit();
}

std::optional<char16_t> LineReader::DecodeUtf8Unit() {
    if (lowSurrogate) {
        return std::exchange(lowSurrogate, std::nullopt);
    }
    input.Ensure(kLongestUtf8);
    if (input.Available() == 0) {
        return std::nullopt;
    }
    const DecodedPoint decoded = DecodeUtf8(input.Cursor(), input.Available());
    input.Skip(static_cast<std::size_t>(decoded.length));
    if (decoded.point < 0x10000) {
        return static_cast<char16_t>(decoded.point);
    }
    lowSurrogate = LowSurrogateOf(decoded.point);
    return HighSurrogateOf(decoded.point);
}

std::optional<char16_t> LineReader::DecodeUtf16Unit() {
    if (!input.Ensure(2)) {
        const bool hasOddByte = input.Available() == 1;
        input.Skip(input.Available());
        return hasOddByte ? std::optional(kReplacementUnit) : std::nullopt;
    }
    const unsigned char* bytes = input.Cursor();
    const bool little = encoding == Encoding::Utf16Little;
    const auto unit = static_cast<char16_t>(little ? bytes[0] | bytes[1] << 8 : bytes[0] << 8 | bytes[1]);
    input.Skip(2);
    return unit;
}

} // namespace Vorn
