#include "engine/archive/binaryfilearchive.h"

#include "engine/archive/checksum.h"
#include "engine/string/stringlibrary.h"

#include <algorithm>
#include <array>
#include <bit>
#include <iterator>

namespace Vorn {

namespace {

// Files are little-endian; turns a value of the host into that order and back.
template <class Bits>
Bits LittleEndian(Bits bits) {
    if constexpr (std::endian::native == std::endian::big) {
        auto bytes = std::bit_cast<std::array<unsigned char, sizeof(Bits)>>(bits);
        std::reverse(bytes.begin(), bytes.end());
        return std::bit_cast<Bits>(bytes);
    }
    return bits;
}

template <class Matrix, class Action>
void ForEachElement(Matrix& matrix, Action action) {
    for (auto& row : matrix.rows) {
        for (auto& element : row) {
            action(element);
        }
    }
}

} // namespace

// Not even a part of a scalar that the end of the file cuts in two is stored.
template <class Bits>
bool BinaryFileArchive::ReadBits(Bits& bits) {
    Bits stored;
    if (file->Read(&stored, sizeof stored, 1) != 1) [[unlikely]] {
        CountIdleRead();
        return false;
    }
    bits = LittleEndian(stored);
    return true;
}

template <class... Bits>
void BinaryFileArchive::WriteBits(Bits... bits) {
    const std::common_type_t<Bits...> stored[] = {LittleEndian(bits)...};
    file->Write(stored, sizeof stored[0], sizeof...(bits));
}

void BinaryFileArchive::ReadFloat(float& value) {
    auto bits = std::bit_cast<std::uint32_t>(value);
    ReadBits(bits);
    value = std::bit_cast<float>(bits);
    checkSum += AddFletcher(bits);
}

void BinaryFileArchive::ReadInt(std::int32_t& value) {
    auto bits = static_cast<std::uint32_t>(value);
    ReadBits(bits);
    value = static_cast<std::int32_t>(bits);
    checkSum += bits;
}

void BinaryFileArchive::Read(Label, Color& value) {
    ReadFloat(value.red);
    ReadFloat(value.green);
    ReadFloat(value.blue);
    ReadFloat(value.alpha);
}

void BinaryFileArchive::Read(Label, Rectangle& value) {
    ReadInt(value.left);
    ReadInt(value.top);
    ReadInt(value.right);
    ReadInt(value.bottom);
}

void BinaryFileArchive::Read(Label, Size& value) {
    ReadInt(value.width);
    ReadInt(value.height);
}

void BinaryFileArchive::Read(Label, Point& value) {
    ReadInt(value.x);
    ReadInt(value.y);
}

void BinaryFileArchive::Read(Label, Quad& value) {
    ReadFloat(value.x);
    ReadFloat(value.y);
    ReadFloat(value.z);
    ReadFloat(value.w);
}

void BinaryFileArchive::Read(Label, Matrix44& value) {
    ForEachElement(value, [this](float& element) { ReadFloat(element); });
}

void BinaryFileArchive::Read(Label, Matrix33& value) {
    ForEachElement(value, [this](float& element) { ReadFloat(element); });
}

void BinaryFileArchive::Read(Label, Vector3& value) {
    ReadFloat(value.x);
    ReadFloat(value.y);
    ReadFloat(value.z);
}

void BinaryFileArchive::Read(Label, char16_t* buffer, int bufferSize) {
    std::uint32_t bits = 0;
    if (!ReadBits(bits)) {
        checkSum += StringCheckSum(TextIn(buffer, bufferSize));
        return;
    }
    const auto numChars = static_cast<std::int32_t>(bits);
    CheckAssert(numChars < bufferSize, "numChars < bufferSize");
    const int room = std::min(numChars, bufferSize - 1);
    int length = ReadUnits(buffer, room);
    buffer[length] = u'\0';
    if (length == room) {
        length += SkipUnits(numChars - room);
    }
    if (length != numChars) {
        file->ReportShortRead(numChars, length);
        CountIdleRead();
    }
    checkSum += StringCheckSum(TextIn(buffer, bufferSize));
}

int BinaryFileArchive::ReadUnits(char16_t* units, int count) {
    const int result = count > 0 ? file->TryRead(units, sizeof(char16_t), count) : 0;
    if constexpr (std::endian::native == std::endian::big) {
        std::transform(units, units + result, units, LittleEndian<char16_t>);
    }
    return result;
}

// Consumes units that their buffer has no room for, so that the next field lines up.
int BinaryFileArchive::SkipUnits(int count) {
    char16_t dropped[256];
    int skipped = 0;
    int result = 1;
    while (skipped < count && result > 0) {
        result = file->TryRead(dropped, sizeof(char16_t), std::min<int>(count - skipped, std::size(dropped)));
        skipped += result;
    }
    return skipped;
}

void BinaryFileArchive::Read(Label, std::int64_t& value) {
    std::uint64_t bits = 0;
    if (ReadBits(bits)) {
        value = static_cast<std::int64_t>(bits);
    }
}

void BinaryFileArchive::Read(Label, Bool& value) {
    std::uint8_t byte = value.Byte();
    ReadBits(byte);
    value = Bool::FromByte(byte);
    checkSum += value ? 1 : 0;
}

void BinaryFileArchive::Read(Label, double& value) {
    auto bits = std::bit_cast<std::uint64_t>(value);
    ReadBits(bits);
    value = std::bit_cast<double>(bits);
    checkSum += DoubleCheckSum(value);
}

void BinaryFileArchive::Read(Label, float& value) {
    ReadFloat(value);
}

void BinaryFileArchive::Read(Label, std::int32_t& value) {
    ReadInt(value);
}

void BinaryFileArchive::Read(Label, std::uint32_t& value) {
    ReadBits(value);
    checkSum += value;
}

void BinaryFileArchive::Read(Label label, SingleLineArchivable& value) {
    value.Read(label, *this);
}

void BinaryFileArchive::Read(Label, Archivable& value, std::int32_t _version) {
    value.Read(*this, _version);
}

void BinaryFileArchive::Read(Label, Archivable& value) {
    value.Read(*this);
}

void BinaryFileArchive::Write(Label, const Color& value) {
    WriteBits(value.red, value.green, value.blue, value.alpha);
}

void BinaryFileArchive::Write(Label, const Rectangle& value) {
    WriteBits(value.left, value.top, value.right, value.bottom);
}

void BinaryFileArchive::Write(Label, const Size& value) {
    WriteBits(value.width, value.height);
}

void BinaryFileArchive::Write(Label, const Point& value) {
    WriteBits(value.x, value.y);
}

void BinaryFileArchive::Write(Label, const Quad& value) {
    WriteBits(value.x, value.y, value.z, value.w);
}

void BinaryFileArchive::Write(Label, const Matrix44& value) {
    ForEachElement(value, [this](float element) { WriteBits(element); });
}

void BinaryFileArchive::Write(Label, const Matrix33& value) {
    ForEachElement(value, [this](float element) { WriteBits(element); });
}

void BinaryFileArchive::Write(Label, const Vector3& value) {
    WriteBits(value.x, value.y, value.z);
}

void BinaryFileArchive::Write(Label, const char16_t* text, int) {
    const int length = GetLength(text);
    WriteBits(length);
    if constexpr (std::endian::native == std::endian::big) {
        std::for_each(text, text + length, [this](char16_t unit) { WriteBits(unit); });
    } else {
        file->Write(text, sizeof(char16_t), length);
    }
}

void BinaryFileArchive::Write(Label, const std::int64_t& value) {
    WriteBits(value);
}

void BinaryFileArchive::Write(Label, const Bool& value) {
    WriteBits(value.Byte());
}

void BinaryFileArchive::Write(Label, const double& value) {
    WriteBits(value);
}

void BinaryFileArchive::Write(Label, const float& value) {
    WriteBits(value);
}

void BinaryFileArchive::Write(Label, const std::int32_t& value) {
    WriteBits(value);
}

void BinaryFileArchive::Write(Label, const std::uint32_t& value) {
    WriteBits(value);
}

void BinaryFileArchive::Write(Label label, const SingleLineArchivable& value) {
    value.Write(label, *this);
}

void BinaryFileArchive::Write(Label, const Archivable& value) {
    value.Write(*this);
}

} // namespace Vorn
