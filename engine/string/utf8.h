#pragma once

#include "engine/core/encodeutf8.h"

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

namespace Vorn {

// The first code point of a UTF-8 text, and its length in bytes.
struct DecodedPoint {
    std::uint32_t point;
    int length;
    bool wellFormed;
};

// Decodes the first code point of at least one byte. A malformed part gives U+FFFD with the length of the maximal part
// that could have begun a code point, at least 1.
DecodedPoint DecodeUtf8(const unsigned char* bytes, std::size_t count);

// The name of a file or an argument as the platform gives it in bytes. Any bytes can be converted and converted back
// unchanged: a byte that is no UTF-8 becomes the unpaired unit U+DC80 + (byte - 0x80).
std::u16string NameFromBytes(std::string_view bytes);
std::string BytesFromName(std::u16string_view name);

} // namespace Vorn
