#pragma once

#include "engine/archive/bytefilearchive.h"
#include "engine/archive/checksum.h"
#include "engine/string/stringlibrary.h"

#include <algorithm>
#include <array>
#include <bit>
#include <cstring>
#include <iterator>
#include <type_traits>

// The bodies of ByteFileArchive, for the files that instantiate it.

namespace Vorn {

// Turns a value of the host into the order of the file and back.
template <class Bits>
Bits LittleEndian(Bits bits) {
    if constexpr (std::endian::native == std::endian::big) {
        auto bytes = std::bit_cast<std::array<unsigned char, sizeof(Bits)>>(bits);
        std::reverse(bytes.begin(), bytes.end());
        return std::bit_cast<Bits>(bytes);
    }
    return bits;
}

template <class Bytes>
void ByteFileArchive<Bytes>::ReportMissing() {
    bytes.ReportShort(1, 0);
    CountIdleRead();
}

// Not even a part of a scalar that the end cuts in two is stored.
template <class Bytes>
template <class Bits>
VORN_ALWAYS_INLINE void ByteFileArchive<Bytes>::ReadBits(Bits& bits) {
    if (const unsigned char* place = bytes.TakeWhole(sizeof bits)) [[likely]] {
        std::memcpy(&bits, place, sizeof bits);
        bits = LittleEndian(bits);
    } else {
        ReadBitsSlowly(bits);
    }
}

template <class Bytes>
template <class Bits>
VORN_RARE void ByteFileArchive<Bytes>::ReadBitsSlowly(Bits& bits) {
    Bits stored;
    if (bytes.Take(&stored, sizeof stored, 1) == 1) {
        bits = LittleEndian(stored);
    } else {
        ReportMissing();
    }
}

// Several scalars of 32 bits in one go; each that is not there counts for itself.
template <class Bytes>
template <class... Words>
VORN_ALWAYS_INLINE void ByteFileArchive<Bytes>::ReadWords(Words&... words) {
    if (const unsigned char* place = bytes.TakeWhole(sizeof(std::uint32_t) * sizeof...(words))) [[likely]] {
        const auto assign = [&place]<class Word>(Word& word) {
            std::uint32_t bits;
            std::memcpy(&bits, place, sizeof bits);
            place += sizeof bits;
            word = std::bit_cast<Word>(LittleEndian(bits));
        };
        (assign(words), ...);
    } else {
        ReadWordsSlowly(words...);
    }
}

template <class Bytes>
template <class... Words>
VORN_RARE void ByteFileArchive<Bytes>::ReadWordsSlowly(Words&... words) {
    (ReadBitsSlowly(words), ...);
}

template <class Bytes>
template <class... Floats>
VORN_ALWAYS_INLINE void ByteFileArchive<Bytes>::ReadFloats(Floats&... floats) {
    ReadWords(floats...);
    checkSum += FloatCheckSum(std::array{floats...});
}

template <class Bytes>
template <class... Ints>
VORN_ALWAYS_INLINE void ByteFileArchive<Bytes>::ReadInts(Ints&... ints) {
    ReadWords(ints...);
    checkSum += (static_cast<std::uint32_t>(ints) + ...);
}

template <class Bytes>
template <class... Bits>
void ByteFileArchive<Bytes>::WriteBits(Bits... bits) {
    const std::common_type_t<Bits...> stored[] = {LittleEndian(bits)...};
    bytes.Put(stored, sizeof stored[0], sizeof...(bits));
}

template <class Bytes>
void ByteFileArchive<Bytes>::Read(Label, Color& value) {
    ReadFloats(value.red, value.green, value.blue, value.alpha);
}

template <class Bytes>
void ByteFileArchive<Bytes>::Read(Label, Rectangle& value) {
    ReadInts(value.left, value.top, value.right, value.bottom);
}

template <class Bytes>
void ByteFileArchive<Bytes>::Read(Label, Size& value) {
    ReadInts(value.width, value.height);
}

template <class Bytes>
void ByteFileArchive<Bytes>::Read(Label, Point& value) {
    ReadInts(value.x, value.y);
}

template <class Bytes>
void ByteFileArchive<Bytes>::Read(Label, Quad& value) {
    ReadFloats(value.x, value.y, value.z, value.w);
}

template <class Bytes>
void ByteFileArchive<Bytes>::Read(Label, Matrix44& value) {
    ReadFloats(value.rows[0][0], value.rows[0][1], value.rows[0][2], value.rows[0][3], value.rows[1][0],
               value.rows[1][1], value.rows[1][2], value.rows[1][3], value.rows[2][0], value.rows[2][1],
               value.rows[2][2], value.rows[2][3], value.rows[3][0], value.rows[3][1], value.rows[3][2],
               value.rows[3][3]);
}

template <class Bytes>
void ByteFileArchive<Bytes>::Read(Label, Matrix33& value) {
    ReadFloats(value.rows[0][0], value.rows[0][1], value.rows[0][2], value.rows[1][0], value.rows[1][1],
               value.rows[1][2], value.rows[2][0], value.rows[2][1], value.rows[2][2]);
}

template <class Bytes>
void ByteFileArchive<Bytes>::Read(Label, Vector3& value) {
    ReadFloats(value.x, value.y, value.z);
}

template <class Bytes>
void ByteFileArchive<Bytes>::Read(Label, char16_t* buffer, int bufferSize) {
    std::uint32_t count = 0;
    if (bytes.Take(&count, sizeof count, 1) != 1) {
        ReportMissing();
        checkSum += StringCheckSum(TextIn(buffer, bufferSize));
        return;
    }
    const auto numChars = static_cast<std::int32_t>(LittleEndian(count));
    CheckAssert(numChars < bufferSize, "numChars < bufferSize");
    const int room = std::min(numChars, bufferSize - 1);
    int length = ReadUnits(buffer, room);
    buffer[length] = u'\0';
    if (length == room) {
        length += SkipUnits(numChars - room);
    }
    if (length != numChars) {
        bytes.ReportShort(numChars, length);
    }
    if (length < numChars) {
        CountIdleRead();
    }
    checkSum += StringCheckSum(TextIn(buffer, bufferSize));
}

template <class Bytes>
int ByteFileArchive<Bytes>::ReadUnits(char16_t* units, int count) {
    const int result = count > 0 ? bytes.Take(units, sizeof(char16_t), count) : 0;
    if constexpr (std::endian::native == std::endian::big) {
        std::transform(units, units + result, units, LittleEndian<char16_t>);
    }
    return result;
}

// Consumes units that their buffer has no room for, so that the next field lines up.
template <class Bytes>
int ByteFileArchive<Bytes>::SkipUnits(int count) {
    char16_t dropped[256];
    int skipped = 0;
    int result = 1;
    while (skipped < count && result > 0) {
        result = ReadUnits(dropped, std::min<int>(count - skipped, std::size(dropped)));
        skipped += result;
    }
    return skipped;
}

template <class Bytes>
void ByteFileArchive<Bytes>::Read(Label, std::int64_t& value) {
    ReadBits(value);
}

template <class Bytes>
void ByteFileArchive<Bytes>::Read(Label, Bool& value) {
    std::uint8_t byte = value.Byte();
    ReadBits(byte);
    value = Bool::FromByte(byte);
    checkSum += value ? 1 : 0;
}

template <class Bytes>
void ByteFileArchive<Bytes>::Read(Label, double& value) {
    auto bits = std::bit_cast<std::uint64_t>(value);
    ReadBits(bits);
    value = std::bit_cast<double>(bits);
    checkSum += DoubleCheckSum(value);
}

template <class Bytes>
void ByteFileArchive<Bytes>::Read(Label, float& value) {
    ReadFloats(value);
}

template <class Bytes>
void ByteFileArchive<Bytes>::Read(Label, std::int32_t& value) {
    ReadInts(value);
}

template <class Bytes>
void ByteFileArchive<Bytes>::Read(Label, std::uint32_t& value) {
    ReadInts(value);
}

template <class Bytes>
void ByteFileArchive<Bytes>::Read(Label label, SingleLineArchivable& value) {
    value.Read(label, *this);
}

template <class Bytes>
void ByteFileArchive<Bytes>::Read(Label, Archivable& value, std::int32_t _version) {
    value.Read(*this, _version);
}

template <class Bytes>
void ByteFileArchive<Bytes>::Read(Label, Archivable& value) {
    value.Read(*this);
}

template <class Bytes>
void ByteFileArchive<Bytes>::Write(Label, const Color& value) {
    WriteBits(value.red, value.green, value.blue, value.alpha);
}

template <class Bytes>
void ByteFileArchive<Bytes>::Write(Label, const Rectangle& value) {
    WriteBits(value.left, value.top, value.right, value.bottom);
}

template <class Bytes>
void ByteFileArchive<Bytes>::Write(Label, const Size& value) {
    WriteBits(value.width, value.height);
}

template <class Bytes>
void ByteFileArchive<Bytes>::Write(Label, const Point& value) {
    WriteBits(value.x, value.y);
}

template <class Bytes>
void ByteFileArchive<Bytes>::Write(Label, const Quad& value) {
    WriteBits(value.x, value.y, value.z, value.w);
}

template <class Bytes>
void ByteFileArchive<Bytes>::Write(Label, const Matrix44& value) {
    WriteBits(value.rows[0][0], value.rows[0][1], value.rows[0][2], value.rows[0][3], value.rows[1][0],
              value.rows[1][1], value.rows[1][2], value.rows[1][3], value.rows[2][0], value.rows[2][1],
              value.rows[2][2], value.rows[2][3], value.rows[3][0], value.rows[3][1], value.rows[3][2],
              value.rows[3][3]);
}

template <class Bytes>
void ByteFileArchive<Bytes>::Write(Label, const Matrix33& value) {
    WriteBits(value.rows[0][0], value.rows[0][1], value.rows[0][2], value.rows[1][0], value.rows[1][1],
              value.rows[1][2], value.rows[2][0], value.rows[2][1], value.rows[2][2]);
}

template <class Bytes>
void ByteFileArchive<Bytes>::Write(Label, const Vector3& value) {
    WriteBits(value.x, value.y, value.z);
}

template <class Bytes>
void ByteFileArchive<Bytes>::Write(Label, const char16_t* text, int) {
    const int length = GetLength(text);
    WriteBits(length);
    if constexpr (std::endian::native == std::endian::big) {
        std::for_each(text, text + length, [this](char16_t unit) { WriteBits(unit); });
    } else {
        bytes.Put(text, sizeof(char16_t), length);
    }
}

template <class Bytes>
void ByteFileArchive<Bytes>::Write(Label, const std::int64_t& value) {
    WriteBits(value);
}

template <class Bytes>
void ByteFileArchive<Bytes>::Write(Label, const Bool& value) {
    WriteBits(value.Byte());
}

template <class Bytes>
void ByteFileArchive<Bytes>::Write(Label, const double& value) {
    WriteBits(value);
}

template <class Bytes>
void ByteFileArchive<Bytes>::Write(Label, const float& value) {
    WriteBits(value);
}

template <class Bytes>
void ByteFileArchive<Bytes>::Write(Label, const std::int32_t& value) {
    WriteBits(value);
}

template <class Bytes>
void ByteFileArchive<Bytes>::Write(Label, const std::uint32_t& value) {
    WriteBits(value);
}

template <class Bytes>
void ByteFileArchive<Bytes>::Write(Label label, const SingleLineArchivable& value) {
    value.Write(label, *this);
}

template <class Bytes>
void ByteFileArchive<Bytes>::Write(Label, const Archivable& value) {
    value.Write(*this);
}

} // namespace Vorn
