#include "tools/kelvanekit/linefinder.h"

#include "engine/string/utf8.h"

#include <algorithm>

namespace Vorn {

namespace {

template <class Weight>
std::int32_t Column(std::string_view line, std::int32_t byte, Weight weight) {
    line = line.substr(0, static_cast<std::size_t>(std::max(byte, 0)));
    std::int32_t column = 1;
    while (!line.empty()) {
        const DecodedPoint decoded = DecodeUtf8(reinterpret_cast<const unsigned char*>(line.data()), line.size());
        column += weight(decoded.point);
        line.remove_prefix(static_cast<std::size_t>(decoded.length));
    }
    return column;
}

} // namespace

LineFinder::LineFinder(std::string_view bytes) : text(bytes) {
    if (bytes.starts_with("\xEF\xBB\xBF")) {
        text.remove_prefix(3);
    } else if (bytes.starts_with("\xFF\xFE") || bytes.starts_with("\xFE\xFF")) {
        encoding = bytes[0] == '\xFF' ? Encoding::Utf16Little : Encoding::Utf16Big;
        text.remove_prefix(2);
    }
}

// What follows the last line end counts as a line only if there is anything.
bool LineFinder::Has(std::int32_t number) {
    return GoTo(number) && place < text.size();
}

bool LineFinder::GoTo(std::int32_t number) {
    if (number < current) {
        current = 1;
        place = 0;
    }
    const std::size_t unit = encoding == Encoding::Utf8 ? 1 : 2;
    while (current < number && place < text.size()) {
        place = std::min(EndOf(place) + unit, text.size());
        ++current;
    }
    return number >= 1 && current == number;
}

std::string_view LineFinder::Line(std::int32_t number) {
    if (!GoTo(number)) {
        return {};
    }
    const std::string_view line = text.substr(place, EndOf(place) - place);
    if (encoding == Encoding::Utf8) {
        return line.ends_with('\r') ? line.substr(0, line.size() - 1) : line;
    }
    std::u16string units;
    for (std::size_t i = 0; i + 1 < line.size(); i += 2) {
        units += UnitAt(place + i);
    }
    if (units.ends_with(u'\r')) {
        units.pop_back();
    }
    converted.resize(units.size() * kMaxUtf8PerUnit);
    converted.resize(static_cast<std::size_t>(EncodeUtf8(converted.data(), units) - converted.data()));
    return converted;
}

// Where the line that begins at a place has its line feed, or the end of the text.
std::size_t LineFinder::EndOf(std::size_t begin) const {
    if (encoding == Encoding::Utf8) {
        return std::min(text.find('\n', begin), text.size());
    }
    while (begin + 1 < text.size() && UnitAt(begin) != u'\n') {
        begin += 2;
    }
    return std::min(begin, text.size());
}

char16_t LineFinder::UnitAt(std::size_t at) const {
    const auto first = static_cast<unsigned char>(text[at]);
    const auto second = static_cast<unsigned char>(text[at + 1]);
    return static_cast<char16_t>(encoding == Encoding::Utf16Little ? first | second << 8 : first << 8 | second);
}

std::int32_t CharacterColumn(std::string_view line, std::int32_t byte) {
    return Column(line, byte, [](std::uint32_t) { return 1; });
}

std::int32_t UnitColumn(std::string_view line, std::int32_t byte) {
    return Column(line, byte, [](std::uint32_t point) { return point < 0x10000 ? 1 : 2; });
}

} // namespace Vorn
