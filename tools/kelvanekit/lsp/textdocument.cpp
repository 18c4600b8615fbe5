#include "tools/kelvanekit/lsp/textdocument.h"

#include "engine/string/utf8.h"

#include <algorithm>

namespace Vorn {

namespace {

constexpr std::string_view kByteOrderMark = "\xEF\xBB\xBF";

std::int32_t UnitsOf(std::uint32_t point, int length, PositionUnits units) {
    return units == PositionUnits::Utf8 ? length : point < 0x10000 ? 1 : 2;
}

DecodedPoint FirstPoint(std::string_view text) {
    return DecodeUtf8(reinterpret_cast<const unsigned char*>(text.data()), text.size());
}

} // namespace

LineIndex::LineIndex(std::string_view text) {
    starts.push_back(0);
    for (std::size_t i = 0; i < text.size(); ++i) {
        if (text[i] == '\n' || (text[i] == '\r' && text.substr(i + 1, 1) != "\n")) {
            starts.push_back(i + 1);
        }
    }
}

std::string_view LineIndex::Line(std::string_view text, std::int32_t line) const {
    if (line < 0 || line >= LineCount()) {
        return {};
    }
    const std::size_t start = Start(line);
    return text.substr(start, std::min(text.find_first_of("\r\n", start), text.size()) - start);
}

Position LineIndex::PositionOf(std::string_view text, std::size_t byte, PositionUnits units) const {
    byte = std::min(byte, text.size());
    const auto behind = std::ranges::upper_bound(starts, byte);
    Position position = {static_cast<std::int32_t>(behind - starts.begin()) - 1, 0};
    std::string_view before = Line(text, position.line).substr(0, byte - Start(position.line));
    while (!before.empty()) {
        const DecodedPoint decoded = FirstPoint(before);
        position.character += UnitsOf(decoded.point, decoded.length, units);
        before.remove_prefix(static_cast<std::size_t>(decoded.length));
    }
    return position;
}

std::size_t LineIndex::ByteOf(std::string_view text, Position position, PositionUnits units) const {
    if (position.line < 0 || position.line >= LineCount()) {
        return position.line < 0 ? 0 : text.size();
    }
    std::string_view rest = Line(text, position.line);
    std::size_t byte = Start(position.line);
    while (!rest.empty() && position.character > 0) {
        const DecodedPoint decoded = FirstPoint(rest);
        position.character -= UnitsOf(decoded.point, decoded.length, units);
        rest.remove_prefix(static_cast<std::size_t>(decoded.length));
        byte += static_cast<std::size_t>(decoded.length);
    }
    return byte;
}

TextDocument::TextDocument(ContentKind _kind, std::string _text) : kind(_kind), text(std::move(_text)), lines(text) {
    FindLines();
}

void TextDocument::SetText(std::string _text) {
    text = std::move(_text);
    FindLines();
}

void TextDocument::Replace(std::size_t begin, std::size_t end, std::string_view replacement) {
    begin = std::min(begin, text.size());
    text.replace(begin, std::clamp(end, begin, text.size()) - begin, replacement);
    FindLines();
}

void TextDocument::FindLines() {
    findings.reset();
    fields.reset();
    lines = LineIndex(text);
    checkedStarts.assign(1, text.starts_with(kByteOrderMark) ? kByteOrderMark.size() : 0);
    for (std::size_t end = 0; (end = text.find('\n', end)) != std::string::npos;) {
        checkedStarts.push_back(++end);
    }
}

const Findings& TextDocument::GetFindings(const KnownNames* names) {
    if (!findings) {
        findings = CheckContent(kind, text, {names});
    }
    return *findings;
}

const TextFields& TextDocument::Fields() {
    if (!fields) {
        fields = ReadTextFields(kind, text);
    }
    return *fields;
}

std::size_t TextDocument::CheckedLineStart(std::int32_t line) const {
    return line < 0                                                ? 0
           : static_cast<std::size_t>(line) < checkedStarts.size() ? checkedStarts[static_cast<std::size_t>(line)]
                                                                   : text.size();
}

std::int32_t TextDocument::CheckedLineAt(std::size_t byte) const {
    return std::max(
        static_cast<std::int32_t>(std::ranges::upper_bound(checkedStarts, byte) - checkedStarts.begin()) - 1, 0);
}

} // namespace Vorn
