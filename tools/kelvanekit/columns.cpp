#include "tools/kelvanekit/columns.h"

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

std::int32_t CharacterColumn(std::string_view line, std::int32_t byte) {
    return Column(line, byte, [](std::uint32_t) { return 1; });
}

std::int32_t UnitColumn(std::string_view line, std::int32_t byte) {
    return Column(line, byte, [](std::uint32_t point) { return point < 0x10000 ? 1 : 2; });
}

} // namespace Vorn
