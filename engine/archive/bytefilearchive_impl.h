#pragma once

#include "engine/archive/archiveform_impl.h"
#include "engine/archive/bytefilearchive.h"
#include "engine/archive/checksum.h"
#include "engine/string/stringlibrary.h"

#include <algorithm>
#include <array>
#include <bit>
#include <cstring>
#include <iterator>
#include <type_traits>

// The bodies of ByteFileArchive, included by the files that instantiate it.

namespace Vorn {

// Converts a value between the byte orders of the platform and of files, in either direction.
template <class Bits>
Bits LittleEndian(Bits bits) {
    if constexpr (std::endian::native == std::endian::big) {
        auto bytes = std::bit_cast<std::array<unsigned char, sizeof(Bits)>>(bits);
        std::reverse(bytes.begin(), bytes.end());
        return std::bit_cast<Bits>(bytes);
    }
    return bits;
}

template <class Numbers>
void ToLittleEndian([[maybe_unused]] Numbers& numbers) {
    if constexpr (std::endian::native == std::endian::big) {
        for (auto& number : numbers) {
            number = LittleEndian(number);
        }
    }
}

template <class Bytes>
void ByteFileArchive<Bytes>::ReportMissing() {
    bytes.ReportShort(1, 0);
    CountIdleRead();
}

// A number that the end of the file cuts in two is not stored at all.
template <class Bytes>
template <class Number>
VORN_ALWAYS_INLINE void ByteFileArchive<Bytes>::ReadNumber(Number& number) {
    if (const unsigned char* place = bytes.TakeWhole(sizeof number)) [[likely]] {
        std::memcpy(&number, place, sizeof number);
        number = LittleEndian(number);
    } else {
        ReadNumberSlowly(number);
    }
}

template <class Bytes>
template <class Number>
VORN_RARE void ByteFileArchive<Bytes>::ReadNumberSlowly(Number& number) {
    Number stored;
    if (bytes.Take(&stored, sizeof stored, 1) == 1) {
        number = LittleEndian(stored);
    } else {
        ReportMissing();
    }
}

// Several 32-bit numbers at once; each one that is missing is reported.
template <class Bytes>
template <class Word, std::size_t N>
VORN_ALWAYS_INLINE void ByteFileArchive<Bytes>::ReadWords(std::array<Word, N>& words) {
    if (const unsigned char* place = bytes.TakeWhole(sizeof words)) [[likely]] {
        std::memcpy(words.data(), place, sizeof words);
        ToLittleEndian(words);
    } else {
        words = ReadWordsSlowly(words);
    }
}

template <class Bytes>
template <class Word, std::size_t N>
VORN_RARE std::array<Word, N> ByteFileArchive<Bytes>::ReadWordsSlowly(std::array<Word, N> words) {
    for (Word& word : words) {
        ReadNumberSlowly(word);
    }
    return words;
}

template <class Bytes>
template <WordValue Value>
VORN_ALWAYS_INLINE void ByteFileArchive<Bytes>::ReadValue(Label, Value& value) {
    Words<Value> words = ToWords(value);
    ReadWords(words);
    value = FromWords<Value>(words);
    checkSum += CheckSumOf(words);
}

template <class Bytes>
void ByteFileArchive<Bytes>::ReadValue(Label, std::int64_t& value) {
    ReadNumber(value);
}

template <class Bytes>
void ByteFileArchive<Bytes>::ReadValue(Label, double& value) {
    ReadNumber(value);
    checkSum += DoubleCheckSum(value);
}

template <class Bytes>
void ByteFileArchive<Bytes>::ReadValue(Label, Bool& value) {
    std::uint8_t byte = value.Byte();
    ReadNumber(byte);
    value = Bool::FromByte(byte);
    checkSum += value ? 1 : 0;
}

template <class Bytes>
template <class Value>
void ByteFileArchive<Bytes>::WriteValue(Label, const Value& value) {
    if constexpr (WordValue<Value>) {
        Words<Value> words = ToWords(value);
        ToLittleEndian(words);
        bytes.Put(words.data(), sizeof words[0], static_cast<int>(words.size()));
    } else if constexpr (std::is_same_v<Value, Bool>) {
        const std::uint8_t byte = value.Byte();
        bytes.Put(&byte, sizeof byte, 1);
    } else {
        const Value stored = LittleEndian(value);
        bytes.Put(&stored, sizeof stored, 1);
    }
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

// Skips units that the buffer has no room for, so that the next field is read at its place.
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
void ByteFileArchive<Bytes>::Write(Label, const char16_t* text, int) {
    const std::int32_t length = GetLength(text);
    WriteValue({}, length);
    if constexpr (std::endian::native == std::endian::big) {
        std::for_each(text, text + length, [this](char16_t unit) { WriteValue({}, unit); });
    } else {
        bytes.Put(text, sizeof(char16_t), length);
    }
}

} // namespace Vorn
