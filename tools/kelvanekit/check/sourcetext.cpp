#include "tools/kelvanekit/check/sourcetext.h"

#include "engine/string/ascii.h"
#include "engine/string/plainscan.h"
#include "engine/string/scan.h"
#include "engine/string/utf8.h"

#include <algorithm>

namespace Vorn {

namespace {

bool IsBlank(char byte) {
    return IsWhiteSpace(static_cast<unsigned char>(byte));
}

} // namespace

SourceText::SourceText(std::string_view bytes) {
    if (bytes.starts_with("\xFF\xFE") || bytes.starts_with("\xFE\xFF")) {
        TakeUtf16(bytes.substr(2), bytes[0] == '\xFF');
        return;
    }
    constexpr std::string_view kMark = "\xEF\xBB\xBF";
    Take(bytes.starts_with(kMark) ? bytes.substr(kMark.size()) : bytes);
}

void SourceText::Take(std::string_view bytes) {
    text = std::make_unique_for_overwrite<char[]>(bytes.size() + kPlainSlack);
    if (!bytes.empty()) {
        std::memcpy(text.get(), bytes.data(), bytes.size());
    }
    std::memset(text.get() + bytes.size(), 0, kPlainSlack);
    start = text.get();
    end = start + bytes.size();
}

// An unpaired unit is encoded like a code point, which no decoder of UTF-8 takes.
void SourceText::TakeUtf16(std::string_view bytes, bool little) {
    std::string converted;
    const auto unitAt = [&](std::size_t i) {
        const auto low = static_cast<unsigned char>(bytes[i + (little ? 0 : 1)]);
        const auto high = static_cast<unsigned char>(bytes[i + (little ? 1 : 0)]);
        return static_cast<char16_t>(high << 8 | low);
    };
    for (std::size_t i = 0; i + 1 < bytes.size(); i += 2) {
        const char16_t unit = unitAt(i);
        const bool isPair = IsHighSurrogate(unit) && i + 3 < bytes.size() && IsLowSurrogate(unitAt(i + 2));
        if (isPair) {
            const char16_t pair[] = {unit, unitAt(i + 2)};
            converted += ToUtf8({pair, 2});
            i += 2;
        } else if (IsHighSurrogate(unit) || IsLowSurrogate(unit)) {
            converted += {static_cast<char>(0xE0 | unit >> 12), static_cast<char>(0x80 | (unit >> 6 & 0x3F)),
                          static_cast<char>(0x80 | (unit & 0x3F))};
        } else {
            converted += ToUtf8({&unit, 1});
        }
    }
    if (bytes.size() % 2 != 0) {
        converted += '\xFF';
    }
    Take(converted);
}

std::int32_t SourceText::LineCount() const {
    if (lineStarts.empty()) {
        for (const char* line = start; line != end;) {
            lineStarts.push_back(line);
            const void* lineFeed = std::memchr(line, '\n', static_cast<std::size_t>(end - line));
            line = lineFeed != nullptr ? static_cast<const char*>(lineFeed) + 1 : end;
        }
        lineStarts.push_back(end);
    }
    return static_cast<std::int32_t>(lineStarts.size()) - 1;
}

std::string_view SourceText::Line(std::int32_t line) const {
    if (line < 0 || line >= LineCount()) {
        return {};
    }
    const char* first = LineStart(line);
    std::string_view result(first, static_cast<std::size_t>(LineStart(line + 1) - first));
    if (result.ends_with('\n')) {
        result.remove_suffix(1);
    }
    if (result.ends_with('\r')) {
        result.remove_suffix(1);
    }
    return result;
}

std::int32_t IndentationOf(std::string_view line) {
    std::size_t count = 0;
    while (count < line.size() && IsBlank(line[count])) {
        ++count;
    }
    return static_cast<std::int32_t>(count);
}

std::string_view KeyOf(std::string_view line) {
    line.remove_prefix(static_cast<std::size_t>(IndentationOf(line)));
    std::size_t length = 0;
    while (length < line.size() && !IsBlank(line[length])) {
        ++length;
    }
    return line.substr(0, length);
}

Remark RemarkOf(std::string_view key) {
    struct Mark {
        std::string_view begin;
        Remark remark;
    };
    constexpr Mark kMarks[] = {
        {"//", Remark::Comment},         {"#", Remark::Comment},           {";", Remark::Comment},
        {"--", Remark::Comment},         {"/*", Remark::Comment},          {"<!--", Remark::Comment},
        {"<<<<<<<", Remark::MergeBegin}, {"=======", Remark::MergeMiddle}, {">>>>>>>", Remark::MergeEnd},
    };
    const auto* mark = std::ranges::find_if(kMarks, [&](const Mark& row) { return key.starts_with(row.begin); });
    return mark == std::end(kMarks) ? Remark::None : mark->remark;
}

std::string Lowered(std::string_view text) {
    std::string result(text);
    std::ranges::transform(result, result.begin(), [](char byte) {
        return byte >= 'A' && byte <= 'Z' ? static_cast<char>(byte - 'A' + 'a') : byte;
    });
    return result;
}

std::string_view Trimmed(std::string_view text) {
    while (!text.empty() && IsBlank(text.back())) {
        text.remove_suffix(1);
    }
    text.remove_prefix(static_cast<std::size_t>(IndentationOf(text)));
    return text;
}

bool IsLabel(std::string_view key, std::u16string_view label) {
    return key.size() == label.size() && Ascii::EqualsEach(key.data(), label);
}

std::string Quoted(std::string_view text) {
    return '`' + std::string(text) + '`';
}

std::string Quoted(std::u16string_view text) {
    return Quoted(ToUtf8(text));
}

std::u16string ToUnits(std::string_view utf8) {
    std::u16string units;
    const auto* bytes = reinterpret_cast<const unsigned char*>(utf8.data());
    for (std::size_t i = 0; i < utf8.size();) {
        const DecodedPoint decoded = DecodeUtf8(bytes + i, utf8.size() - i);
        i += static_cast<std::size_t>(decoded.length);
        if (decoded.point < 0x10000) {
            units += static_cast<char16_t>(decoded.point);
        } else {
            units += {HighSurrogateOf(decoded.point), LowSurrogateOf(decoded.point)};
        }
    }
    return units;
}

std::string ToUtf8(std::u16string_view units) {
    std::string result(units.size() * kMaxUtf8PerUnit, '\0');
    result.resize(static_cast<std::size_t>(EncodeUtf8(result.data(), units) - result.data()));
    return result;
}

} // namespace Vorn
