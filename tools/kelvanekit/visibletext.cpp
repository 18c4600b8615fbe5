#include "tools/kelvanekit/visibletext.h"

#include "engine/string/utf8.h"

#include <algorithm>
#include <cstdint>

namespace Vorn {

namespace {

constexpr int kTabWidth = 4;
constexpr std::uint32_t kControlPictures = 0x2400;
constexpr std::uint32_t kDeletePicture = 0x2421;

struct Range {
    std::uint32_t first;
    std::uint32_t last;
};

// Combining marks and joiners fill no column.
constexpr Range kNarrow[] = {{0x0300, 0x036F}, {0x0483, 0x0489}, {0x0591, 0x05BD}, {0x064B, 0x065F}, {0x1AB0, 0x1AFF},
                             {0x1DC0, 0x1DFF}, {0x200C, 0x200D}, {0x20D0, 0x20F0}, {0xFE00, 0xFE0F}, {0xFE20, 0xFE2F}};

// East Asian characters and pictures fill two.
constexpr Range kWide[] = {{0x1100, 0x115F},   {0x2E80, 0x303E},   {0x3041, 0xA4CF},   {0xAC00, 0xD7A3},
                           {0xF900, 0xFAFF},   {0xFE30, 0xFE6F},   {0xFF00, 0xFF60},   {0xFFE0, 0xFFE6},
                           {0x1F300, 0x1F64F}, {0x1F680, 0x1F6FF}, {0x1F900, 0x1F9FF}, {0x20000, 0x3FFFD}};

// What changes the direction of the text around it, is a control character of the second set, or looks like a blank or
// like nothing.
constexpr Range kHidden[] = {{0x0080, 0x00A0}, {0x061C, 0x061C}, {0x2000, 0x200B}, {0x200E, 0x200F},
                             {0x2028, 0x202F}, {0x205F, 0x2060}, {0x2066, 0x2069}, {0xFEFF, 0xFEFF}};

template <std::size_t N>
bool IsIn(const Range (&ranges)[N], std::uint32_t point) {
    return std::ranges::any_of(ranges, [&](const Range& range) { return range.first <= point && point <= range.last; });
}

std::uint32_t VisiblePoint(std::uint32_t point) {
    if (point < 0x20) {
        return kControlPictures + point;
    }
    if (point == 0x7F) {
        return kDeletePicture;
    }
    return IsIn(kHidden, point) ? kReplacementUnit : point;
}

std::string Encode(std::uint32_t point) {
    char16_t units[2] = {static_cast<char16_t>(point)};
    std::size_t count = 1;
    if (point >= 0x10000) {
        units[0] = HighSurrogateOf(point);
        units[1] = LowSurrogateOf(point);
        count = 2;
    }
    char bytes[2 * kMaxUtf8PerUnit];
    const char* end = EncodeUtf8(bytes, {units, count});
    return {bytes, static_cast<std::size_t>(end - bytes)};
}

DecodedPoint Decode(std::string_view text) {
    return DecodeUtf8(reinterpret_cast<const unsigned char*>(text.data()), text.size());
}

bool IsPlain(char byte) {
    return byte >= ' ' && byte < '\x7F';
}

} // namespace

VisibleCharacter FirstVisible(std::string_view text) {
    const DecodedPoint decoded = Decode(text);
    const auto length = static_cast<std::size_t>(decoded.length);
    if (decoded.point == '\t') {
        return {std::string(kTabWidth, ' '), kTabWidth, length};
    }
    const int width = IsIn(kNarrow, decoded.point) ? 0 : IsIn(kWide, decoded.point) ? 2 : 1;
    return {Encode(VisiblePoint(decoded.point)), width, length};
}

void AppendVisible(std::string& out, std::string_view text) {
    while (!text.empty()) {
        const auto plain = static_cast<std::size_t>(std::ranges::find_if_not(text, IsPlain) - text.begin());
        out += text.substr(0, plain);
        text.remove_prefix(plain);
        if (!text.empty()) {
            const DecodedPoint decoded = Decode(text);
            out += Encode(VisiblePoint(decoded.point));
            text.remove_prefix(static_cast<std::size_t>(decoded.length));
        }
    }
}

std::string WellFormed(std::string_view text) {
    std::string result;
    while (!text.empty()) {
        const DecodedPoint decoded = Decode(text);
        const auto length = static_cast<std::size_t>(decoded.length);
        result += decoded.wellFormed ? std::string(text.substr(0, length)) : Encode(decoded.point);
        text.remove_prefix(length);
    }
    return result;
}

} // namespace Vorn
