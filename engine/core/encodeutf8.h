#pragma once

#include <cstdint>
#include <string_view>

namespace Vorn {

inline constexpr char16_t kReplacementUnit = 0xFFFD;

constexpr bool IsHighSurrogate(std::uint32_t unit) {
    return (unit & 0xFFFFFC00) == 0xD800;
}
constexpr bool IsLowSurrogate(std::uint32_t unit) {
    return (unit & 0xFFFFFC00) == 0xDC00;
}

constexpr bool IsSurrogate(std::uint32_t unit) {
    return IsHighSurrogate(unit) || IsLowSurrogate(unit);
}

constexpr char16_t HighSurrogateOf(std::uint32_t point) {
    return static_cast<char16_t>(0xD7C0 + (point >> 10));
}
constexpr char16_t LowSurrogateOf(std::uint32_t point) {
    return static_cast<char16_t>(0xDC00 | (point & 0x3FF));
}

// Encodes a code point, which may be an unpaired surrogate, and returns the end.
char* EncodePoint(char* out, std::uint32_t point);

// Removes the first code point of a text, which must not be empty, and returns it; an unpaired surrogate is returned as
// it is.
std::uint32_t RemovePoint(std::u16string_view& text);

// The most bytes that one code unit needs.
inline constexpr int kMaxUtf8PerUnit = 3;

// Encodes 16-bit text with room for kMaxUtf8PerUnit bytes a unit and returns the end. An unpaired surrogate becomes
// U+FFFD.
char* EncodeUtf8(char* out, std::u16string_view text);

} // namespace Vorn
