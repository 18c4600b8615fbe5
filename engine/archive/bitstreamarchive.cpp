#include "engine/archive/bitstreamarchive.h"

#include "engine/core/report.h"
#include "engine/string/stringlibrary.h"

#include <algorithm>
#include <bit>

namespace Vorn {

namespace {

constexpr int kWordBits = 32;
constexpr int kLengthBits = 8;
constexpr int kMaxTextLength = 255;

std::uint32_t CreateLargestUInt(int bitCount) {
    return bitCount >= kWordBits ? UINT32_MAX : (std::uint32_t{1} << std::max(bitCount, 0)) - 1;
}

void CheckFits(std::uint32_t value, int bitCount) {
    CheckAssert(value <= CreateLargestUInt(bitCount), "(unsigned int)(*data) <= CreateLargestUInt(bitCount)");
}

template <class Wide>
Wide FromHalves(std::uint32_t low, std::uint32_t high) {
    return std::bit_cast<Wide>(static_cast<std::uint64_t>(high) << kWordBits | low);
}

} // namespace

void BitStreamArchive::Rewind() {
    currentPos = 0;
    currentBit = 0;
}

void BitStreamArchive::NextBit() {
    if (++currentBit == 8) {
        currentBit = 0;
        ++currentPos;
        CheckAssert(currentPos <= stream.size(), "currentPos <= stream.Size()");
    }
}

std::uint32_t BitStreamArchive::ReadBits(int bitCount) {
    std::uint32_t value = 0;
    for (int bit = 0; bit < std::min(bitCount, kWordBits); ++bit) {
        const bool isSet = currentPos < stream.size() && (stream[currentPos] >> currentBit & 1) != 0;
        value |= static_cast<std::uint32_t>(isSet) << bit;
        NextBit();
    }
    if (currentPos > stream.size()) {
        CountIdleRead();
    }
    return value;
}

void BitStreamArchive::WriteBits(std::uint32_t value, int bitCount) {
    CheckAssert(bitCount > 0, "bitCount > 0");
    CheckAssert(static_cast<unsigned>(bitCount) <= kWordBits,
                "(unsigned int)(bitCount) <= (sizeof(unsigned int) * 8U)");
    CheckFits(value, bitCount);
    for (int bit = 0; bit < std::min(bitCount, kWordBits); ++bit) {
        if (currentPos >= stream.size()) {
            stream.resize(currentPos + 1);
        }
        const unsigned others = stream[currentPos] & ~(1u << currentBit);
        stream[currentPos] = static_cast<unsigned char>(others | (value >> bit & 1) << currentBit);
        NextBit();
    }
}

template <class... Words>
void BitStreamArchive::ReadWords(Words&... words) {
    ((words = std::bit_cast<Words>(ReadBits(kWordBits))), ...);
}

template <class... Words>
void BitStreamArchive::WriteWords(Words... words) {
    (WriteBits(std::bit_cast<std::uint32_t>(words), kWordBits), ...);
}

void BitStreamArchive::Read(Label, std::uint32_t& value, int bitCount) {
    value = ReadBits(bitCount);
}

void BitStreamArchive::Write(Label, const std::uint32_t& value, int bitCount) {
    WriteBits(value, bitCount);
}

void BitStreamArchive::Read(Label, Color& value) {
    ReadWords(value.red, value.green, value.blue, value.alpha);
}

void BitStreamArchive::Read(Label, Rectangle& value) {
    ReadWords(value.left, value.top, value.right, value.bottom);
}

void BitStreamArchive::Read(Label, Size& value) {
    ReadWords(value.width, value.height);
}

void BitStreamArchive::Read(Label, Point& value) {
    ReadWords(value.x, value.y);
}

void BitStreamArchive::Read(Label, Quad& value) {
    ReadWords(value.x, value.y, value.z, value.w);
}

void BitStreamArchive::Read(Label, Matrix44& value) {
    ReadWords(value.rows[0][0], value.rows[0][1], value.rows[0][2], value.rows[0][3], value.rows[1][0],
              value.rows[1][1], value.rows[1][2], value.rows[1][3], value.rows[2][0], value.rows[2][1],
              value.rows[2][2], value.rows[2][3], value.rows[3][0], value.rows[3][1], value.rows[3][2],
              value.rows[3][3]);
}

void BitStreamArchive::Read(Label, Matrix33& value) {
    ReadWords(value.rows[0][0], value.rows[0][1], value.rows[0][2], value.rows[1][0], value.rows[1][1],
              value.rows[1][2], value.rows[2][0], value.rows[2][1], value.rows[2][2]);
}

void BitStreamArchive::Read(Label, Vector3& value) {
    ReadWords(value.x, value.y, value.z);
}

void BitStreamArchive::Read(Label, float& value) {
    ReadWords(value);
}

void BitStreamArchive::Read(Label, std::int32_t& value) {
    ReadWords(value);
}

void BitStreamArchive::Read(Label, std::uint32_t& value) {
    ReadWords(value);
}

void BitStreamArchive::Read(Label, char16_t* buffer, int bufferSize) {
    const auto stringLength = static_cast<int>(ReadBits(kLengthBits));
    CheckAssert(stringLength < bufferSize, "stringLength < bufferSize");
    for (int i = 0; i < stringLength; ++i) {
        const auto unit = static_cast<char16_t>(ReadBits(kWordBits));
        if (i < bufferSize - 1) {
            buffer[i] = unit;
        }
    }
    buffer[std::min(stringLength, bufferSize - 1)] = u'\0';
}

void BitStreamArchive::Read(Label, std::int64_t& value) {
    CheckAssert(false, "false");
    const std::uint32_t low = ReadBits(kWordBits);
    const std::uint32_t high = ReadBits(kWordBits);
    value = FromHalves<std::int64_t>(low, high);
}

void BitStreamArchive::Read(Label, double& value) {
    CheckAssert(false, "false");
    const std::uint32_t low = ReadBits(kWordBits);
    const std::uint32_t high = ReadBits(kWordBits);
    value = FromHalves<double>(low, high);
}

void BitStreamArchive::Read(Label, Bool& value) {
    value = ReadBits(1) != 0;
}

void BitStreamArchive::Read(Label label, SingleLineArchivable& value) {
    value.Read(label, *this);
}

void BitStreamArchive::Read(Label, Archivable& value, std::int32_t _version) {
    value.Read(*this, _version);
}

void BitStreamArchive::Read(Label, Archivable& value) {
    value.Read(*this);
}

void BitStreamArchive::Write(Label, const Color& value) {
    WriteWords(value.red, value.green, value.blue, value.alpha);
}

void BitStreamArchive::Write(Label, const Rectangle& value) {
    WriteWords(value.left, value.top, value.right, value.bottom);
}

void BitStreamArchive::Write(Label, const Size& value) {
    WriteWords(value.width, value.height);
}

void BitStreamArchive::Write(Label, const Point& value) {
    WriteWords(value.x, value.y);
}

void BitStreamArchive::Write(Label, const Quad& value) {
    WriteWords(value.x, value.y, value.z, value.w);
}

void BitStreamArchive::Write(Label, const Matrix44& value) {
    WriteWords(value.rows[0][0], value.rows[0][1], value.rows[0][2], value.rows[0][3], value.rows[1][0],
               value.rows[1][1], value.rows[1][2], value.rows[1][3], value.rows[2][0], value.rows[2][1],
               value.rows[2][2], value.rows[2][3], value.rows[3][0], value.rows[3][1], value.rows[3][2],
               value.rows[3][3]);
}

void BitStreamArchive::Write(Label, const Matrix33& value) {
    WriteWords(value.rows[0][0], value.rows[0][1], value.rows[0][2], value.rows[1][0], value.rows[1][1],
               value.rows[1][2], value.rows[2][0], value.rows[2][1], value.rows[2][2]);
}

void BitStreamArchive::Write(Label, const Vector3& value) {
    WriteWords(value.x, value.y, value.z);
}

void BitStreamArchive::Write(Label, const float& value) {
    WriteWords(value);
}

void BitStreamArchive::Write(Label, const std::int32_t& value) {
    WriteWords(value);
}

void BitStreamArchive::Write(Label, const std::uint32_t& value) {
    WriteWords(value);
}

void BitStreamArchive::Write(Label, const char16_t* text, int) {
    const int whole = GetLength(text);
    const int length = std::min(whole, kMaxTextLength);
    if (length < whole) {
        CheckFits(static_cast<std::uint32_t>(whole), kLengthBits);
    }
    WriteBits(static_cast<std::uint32_t>(length), kLengthBits);
    std::for_each(text, text + length, [this](char16_t unit) { WriteBits(unit, kWordBits); });
}

void BitStreamArchive::Write(Label, const std::int64_t& value) {
    CheckAssert(false, "false");
    const auto bits = std::bit_cast<std::uint64_t>(value);
    WriteBits(static_cast<std::uint32_t>(bits), kWordBits);
    WriteBits(static_cast<std::uint32_t>(bits >> kWordBits), kWordBits);
}

void BitStreamArchive::Write(Label, const double& value) {
    CheckAssert(false, "false");
    const auto bits = std::bit_cast<std::uint64_t>(value);
    WriteBits(static_cast<std::uint32_t>(bits), kWordBits);
    WriteBits(static_cast<std::uint32_t>(bits >> kWordBits), kWordBits);
}

void BitStreamArchive::Write(Label, const Bool& value) {
    WriteBits(value ? 1 : 0, 1);
}

void BitStreamArchive::Write(Label label, const SingleLineArchivable& value) {
    value.Write(label, *this);
}

void BitStreamArchive::Write(Label, const Archivable& value) {
    value.Write(*this);
}

} // namespace Vorn
