#include "engine/archive/further/bitstreamarchive.h"

#include "engine/archive/archiveform_impl.h"
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

template <WordValue Value>
void BitStreamArchive::ReadValue(Label, Value& value) {
    Words<Value> words;
    for (auto& word : words) {
        word = std::bit_cast<typename Words<Value>::value_type>(ReadBits(kWordBits));
    }
    value = FromWords<Value>(words);
}

void BitStreamArchive::ReadValue(Label, Bool& value) {
    value = ReadBits(1) != 0;
}

template <class Wide>
void BitStreamArchive::ReadValue(Label, Wide& value) {
    CheckAssert(false, "false");
    const std::uint32_t low = ReadBits(kWordBits);
    const std::uint32_t high = ReadBits(kWordBits);
    value = std::bit_cast<Wide>(static_cast<std::uint64_t>(high) << kWordBits | low);
}

template <WordValue Value>
void BitStreamArchive::WriteValue(Label, const Value& value) {
    for (const auto word : ToWords(value)) {
        WriteBits(std::bit_cast<std::uint32_t>(word), kWordBits);
    }
}

void BitStreamArchive::WriteValue(Label, const Bool& value) {
    WriteBits(value ? 1 : 0, 1);
}

template <class Wide>
void BitStreamArchive::WriteValue(Label, const Wide& value) {
    CheckAssert(false, "false");
    const auto bits = std::bit_cast<std::uint64_t>(value);
    WriteBits(static_cast<std::uint32_t>(bits), kWordBits);
    WriteBits(static_cast<std::uint32_t>(bits >> kWordBits), kWordBits);
}

BitStreamArchive::BitStreamArchive() = default;
BitStreamArchive::BitStreamArchive(std::vector<unsigned char> _stream) : stream(std::move(_stream)) {}
BitStreamArchive::~BitStreamArchive() = default;

void BitStreamArchive::Read(Label, std::uint32_t& value, int bitCount) {
    value = ReadBits(bitCount);
}

void BitStreamArchive::Write(Label, const std::uint32_t& value, int bitCount) {
    WriteBits(value, bitCount);
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

void BitStreamArchive::Write(Label, const char16_t* text, int) {
    const int whole = GetLength(text);
    const int length = std::min(whole, kMaxTextLength);
    if (length < whole) {
        CheckFits(static_cast<std::uint32_t>(whole), kLengthBits);
    }
    WriteBits(static_cast<std::uint32_t>(length), kLengthBits);
    std::for_each(text, text + length, [this](char16_t unit) { WriteBits(unit, kWordBits); });
}

} // namespace Vorn
