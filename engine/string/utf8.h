#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

namespace Vorn {

inline constexpr char16_t kReplacementUnit = 0xFFFD;

constexpr bool IsHighSurrogate(std::uint32_t unit) {
    return (unit & 0xFFFFFC00) == 0xD800;
}
constexpr bool IsLowSurrogate(std::uint32_t unit) {
    return (unit & 0xFFFFFC00) == 0xDC00;
}

constexpr char16_t HighSurrogateOf(std::uint32_t point) {
    return static_cast<char16_t>(0xD7C0 + (point >> 10));
}
constexpr char16_t LowSurrogateOf(std::uint32_t point) {
    return static_cast<char16_t>(0xDC00 | (point & 0x3FF));
}

// A code point taken from the front of a UTF-8 text, with the number of bytes it takes.
struct DecodedPoint {
    std::uint32_t point;
    int length;
    bool wellFormed;
};

// Decodes the first code point of at least one byte. A malformed part gives U+FFFD with the length of the maximal part
// that could have begun a code point, at least 1.
DecodedPoint DecodeUtf8(const unsigned char* bytes, std::size_t count);

// Bytes that one code unit can take at most.
inline constexpr int kMaxUtf8PerUnit = 3;

// Encodes 16-bit text with room for kMaxUtf8PerUnit bytes a unit and returns the end. An unpaired surrogate becomes
// U+FFFD.
char* EncodeUtf8(char* out, std::u16string_view text);

// The name of a file or an argument as the platform gives it in bytes. Every byte string survives the way there and
// back: a byte that is no UTF-8 becomes the unpaired unit U+DC80 + (byte - 0x80).
std::u16string NameFromBytes(std::string_view bytes);
std::string BytesFromName(std::u16string_view name);

} // namespace Vorn
