#include "engine/string/utf8.h"

namespace Vorn {

namespace {

constexpr std::uint32_t kEscapedByteBase = 0xDC80;

struct LeadByte {
    int length;
    unsigned char secondLow;
    unsigned char secondHigh;
};

// The bounds of the second byte exclude overlong forms, surrogates and code points above U+10FFFF.
LeadByte ClassifyLead(unsigned char lead) {
    if (lead >= 0xC2 && lead <= 0xDF) {
        return {2, 0x80, 0xBF};
    }
    if (lead >= 0xE0 && lead <= 0xEF) {
        return {3, static_cast<unsigned char>(lead == 0xE0 ? 0xA0 : 0x80),
                static_cast<unsigned char>(lead == 0xED ? 0x9F : 0xBF)};
    }
    if (lead >= 0xF0 && lead <= 0xF4) {
        return {4, static_cast<unsigned char>(lead == 0xF0 ? 0x90 : 0x80),
                static_cast<unsigned char>(lead == 0xF4 ? 0x8F : 0xBF)};
    }
    return {1, 0, 0};
}

} // namespace

DecodedPoint DecodeUtf8(const unsigned char* bytes, std::size_t count) {
    if (bytes[0] < 0x80) {
        return {bytes[0], 1, true};
    }
    const LeadByte lead = ClassifyLead(bytes[0]);
    if (lead.length == 1) {
        return {kReplacementUnit, 1, false};
    }
    std::uint32_t point = bytes[0] & (0x7FU >> lead.length);
    unsigned char low = lead.secondLow;
    unsigned char high = lead.secondHigh;
    for (int i = 1; i < lead.length; ++i) {
        if (static_cast<std::size_t>(i) == count || bytes[i] < low || bytes[i] > high) {
            return {kReplacementUnit, i, false};
        }
        point = point << 6 | (bytes[i] & 0x3FU);
        low = 0x80;
        high = 0xBF;
    }
    return {point, lead.length, true};
}

std::u16string NameFromBytes(std::string_view bytes) {
    std::u16string name;
    name.reserve(bytes.size());
    while (!bytes.empty()) {
        const auto* data = reinterpret_cast<const unsigned char*>(bytes.data());
        const DecodedPoint decoded = DecodeUtf8(data, bytes.size());
        if (!decoded.wellFormed) {
            name += static_cast<char16_t>(kEscapedByteBase + (*data - 0x80U));
            bytes.remove_prefix(1);
            continue;
        }
        if (decoded.point >= 0x10000) {
            name += HighSurrogateOf(decoded.point);
            name += LowSurrogateOf(decoded.point);
        } else {
            name += static_cast<char16_t>(decoded.point);
        }
        bytes.remove_prefix(static_cast<std::size_t>(decoded.length));
    }
    return name;
}

std::string BytesFromName(std::u16string_view name) {
    std::string bytes;
    bytes.reserve(name.size());
    while (!name.empty()) {
        const std::uint32_t point = RemovePoint(name);
        if (point >= kEscapedByteBase && point < kEscapedByteBase + 0x80) {
            bytes += static_cast<char>(point - kEscapedByteBase + 0x80);
            continue;
        }
        char encoded[4];
        const char* end = EncodePoint(encoded, IsSurrogate(point) ? kReplacementUnit : point);
        bytes.append(encoded, static_cast<std::size_t>(end - encoded));
    }
    return bytes;
}

} // namespace Vorn
