#include "engine/core/encodeutf8.h"

namespace Vorn {

char* EncodePoint(char* out, std::uint32_t point) {
    const auto put = [&](std::uint32_t byte) { *out++ = static_cast<char>(byte); };
    if (point < 0x80) {
        put(point);
    } else if (point < 0x800) {
        put(0xC0 | point >> 6);
        put(0x80 | (point & 0x3F));
    } else if (point < 0x10000) {
        put(0xE0 | point >> 12);
        put(0x80 | (point >> 6 & 0x3F));
        put(0x80 | (point & 0x3F));
    } else {
        put(0xF0 | point >> 18);
        put(0x80 | (point >> 12 & 0x3F));
        put(0x80 | (point >> 6 & 0x3F));
        put(0x80 | (point & 0x3F));
    }
    return out;
}

std::uint32_t RemovePoint(std::u16string_view& text) {
    const std::uint32_t unit = text.front();
    text.remove_prefix(1);
    if (IsHighSurrogate(unit) && !text.empty() && IsLowSurrogate(text.front())) {
        const std::uint32_t low = text.front();
        text.remove_prefix(1);
        return 0x10000 + ((unit - 0xD800) << 10) + (low - 0xDC00);
    }
    return unit;
}

char* EncodeUtf8(char* out, std::u16string_view text) {
    while (true) {
        // Nearly all text is ASCII.
        std::size_t plain = 0;
        for (; plain < text.size() && text[plain] < 0x80; ++plain) {
            out[plain] = static_cast<char>(text[plain]);
        }
        out += plain;
        text.remove_prefix(plain);
        if (text.empty()) {
            return out;
        }
        const std::uint32_t point = RemovePoint(text);
        out = EncodePoint(out, IsSurrogate(point) ? kReplacementUnit : point);
    }
}

} // namespace Vorn
