#include "tools/kelvanekit/check/binaryreader.h"

#include "engine/archive/archiveform_impl.h"
#include "engine/archive/archiveheader.h"
#include "engine/archive/archiveversion.h"
#include "engine/string/utf8.h"
#include "tools/kelvanekit/check/sourcetext.h"
#include "tools/kelvanekit/findings/findingcodes.h"

#include <algorithm>
#include <bit>
#include <cstring>
#include <utility>

namespace Vorn {

namespace {

constexpr std::size_t kMostLineUnits = 1022;
constexpr std::size_t kMostFindings = 1000;
constexpr std::size_t kShownUnits = 80;

} // namespace

BinaryReader::BinaryReader(std::string_view _bytes, Mode _mode, const KnownNames* _names)
    : FieldReaderForm(_mode, _names), bytes(_bytes) {
    mostFindings = kMostFindings;
    if (IsNoting()) {
        KeepValues();
    }
}

void BinaryReader::ReadAll(LoadedContent& content) {
    hasVersion = bytes.size() > kBinaryMarkSize && bytes[kBinaryMarkSize] == kVersionMark;
    place = std::min<std::size_t>(bytes.size(), hasVersion ? sizeof kBinaryHeader : kOldBinaryHeaderSize);
    std::int32_t fileVersion = kNoVersion;
    if (hasVersion) {
        Read(kVersionLabel, fileVersion);
    }
    SetVersion(fileVersion);
    content.Read(*this);
    if (place < bytes.size()) {
        Spoil();
        if (IsNoting()) {
            Finding& finding = findings.emplace_back();
            finding.code = Code("trailing-content");
            finding.place.offset = static_cast<std::int64_t>(place);
            finding.message = std::to_string(bytes.size() - place) + " bytes stand behind the last field";
        }
    }
}

void BinaryReader::AtAbnormalEnd() {
    if (!IsListFlawed()) {
        NoteFault(Code("ends-abnormally"), "a conversion ends abnormally here");
    }
}

std::string_view BinaryReader::BytesOf(std::int32_t ask) const {
    const auto begin = static_cast<std::size_t>(asks[static_cast<std::size_t>(ask)].offset);
    const auto next = static_cast<std::size_t>(ask) + 1;
    const std::size_t end = next < asks.size() ? static_cast<std::size_t>(asks[next].offset) : place;
    return bytes.substr(begin, end - begin);
}

void BinaryReader::Begin(Label label, FieldKind kind) {
    fieldLabel = label;
    if (IsNoting()) {
        NoteField(label, kind, kNone, static_cast<std::int64_t>(place));
    }
}

void BinaryReader::NoteFault(const FindingCode* code, std::string message) {
    Spoil();
    if (IsNoting() && !asks.empty()) {
        Add(code, LastAsk(), std::move(message));
    }
}

void BinaryReader::NoteShort(const FindingCode* code, std::string message) {
    NoteFault(code, std::move(message));
    throw Stop();
}

template <class Scalar>
void BinaryReader::Take(Scalar& value) {
    if (bytes.size() - place < sizeof value) {
        place = bytes.size();
        NoteShort(Code("truncated"),
                  "the file ends inside of " + Quoted(fieldLabel) + ": it and all behind it keep their defaults");
    }
    std::array<unsigned char, sizeof value> stored;
    std::memcpy(stored.data(), bytes.data() + place, sizeof value);
    if constexpr (std::endian::native == std::endian::big) {
        std::ranges::reverse(stored);
    }
    value = std::bit_cast<Scalar>(stored);
    place += sizeof value;
}

template <class Word, std::size_t N>
void BinaryReader::ReadWords(Label label, FieldKind kind, std::array<Word, N>& words) {
    Begin(label, kind);
    for (Word& word : words) {
        Take(word);
    }
}

bool BinaryReader::BeginGroup(Label label, FieldKind kind) {
    Begin(label, kind);
    return true;
}

template <class Value>
void BinaryReader::ReadOne(Label label, Value& value) {
    if constexpr (WordValue<Value>) {
        auto words = ToWords(value);
        ReadWords(label, kKindOf<Value>, words);
        value = FromWords<Value>(words);
    } else if constexpr (std::is_same_v<Value, Bool>) {
        Begin(label, FieldKind::Bool);
        std::uint8_t byte = 0;
        Take(byte);
        value = Bool::FromByte(byte);
        if (byte > 1) {
            NoteFault(Code("bad-boolean"),
                      "the byte " + std::to_string(byte) + " is neither 0 nor 1: it counts as TRUE");
        }
    } else {
        Begin(label, kKindOf<Value>);
        Take(value);
    }
    if constexpr (std::is_same_v<Value, std::uint32_t>) {
        if (std::exchange(nextIsCount, false)) {
            value = static_cast<std::uint32_t>(CountOf(static_cast<std::int32_t>(value)));
        }
    }
    nextIsDegrees = false;
}

std::int32_t BinaryReader::CountOf(std::int32_t count) {
    if (count < 0) {
        Spoil();
        NoteNegativeCount(count);
        count = 0;
    } else if (static_cast<std::size_t>(count) > bytes.size() - place) {
        NoteShort(Code("count-mismatch"), "the count is " + std::to_string(count) + ", but only " +
                                              std::to_string(bytes.size() - place) + " bytes follow");
    }
    OpenList list;
    list.ask = LastAsk();
    list.count = count;
    list.entries = count;
    list.shape = nextList;
    list.depth = depth;
    if (IsNoting()) {
        NoteCount(list);
    } else if (nextList.limit != ListShape::kUnlimited && count > nextList.limit) {
        Spoil();
    }
    lists.push_back(list);
    return count;
}

void BinaryReader::Read(Label label, char16_t* buffer, int bufferSize) {
    nextCapacity = bufferSize;
    Begin(label, FieldKind::Text);
    std::int32_t count = 0;
    Take(count);
    const std::size_t left = (bytes.size() - place) / sizeof(char16_t);
    if (count < 0 || static_cast<std::size_t>(count) > left) {
        NoteShort(Code("truncated"), "the text should have " + std::to_string(count) + " units, and " +
                                         std::to_string(left) + " are there");
    }
    std::u16string text(static_cast<std::size_t>(count), u'\0');
    for (char16_t& unit : text) {
        Take(unit);
    }
    if (count >= bufferSize) {
        NoteFault(Code("text-too-long"), "the text has " + std::to_string(count) + " units, and there is room for " +
                                             std::to_string(bufferSize - 1) + ": the rest is lost");
        text.resize(static_cast<std::size_t>(bufferSize) - 1);
    }
    buffer[text.copy(buffer, text.size())] = u'\0';
    CheckText(text);
    if (nextTable != nullptr && IsNoting()) {
        TakeChoice({buffer, bufferSize}, true, nullptr);
    }
    nextTable = nullptr;
    NoteName(text);
    KeepText({buffer, bufferSize});
}

// What the line of a text form could not hold.
void BinaryReader::CheckText(std::u16string_view text) {
    const auto isHalf = [&](std::size_t i) {
        return (IsHighSurrogate(text[i]) && (i + 1 == text.size() || !IsLowSurrogate(text[i + 1]))) ||
               (IsLowSurrogate(text[i]) && (i == 0 || !IsHighSurrogate(text[i - 1])));
    };
    const char* what = nullptr;
    for (std::size_t i = 0; i < text.size() && what == nullptr; ++i) {
        what = text[i] == u'"'    ? "a double quote"
               : text[i] == u'\n' ? "a line feed"
               : text[i] == u'\0' ? "the unit 0"
               : isHalf(i)        ? "half of a surrogate pair"
                                  : nullptr;
    }
    if (what != nullptr) {
        NoteFault(Code("not-representable"), "the text " +
                                                 Quoted(text.substr(0, text.find(u'\0')).substr(0, kShownUnits)) +
                                                 " has " + what + " in it, which the text form cannot hold");
    } else if (text.size() + fieldLabel.size() + 3 > kMostLineUnits) {
        NoteFault(Code("not-representable"),
                  "the text has " + std::to_string(text.size()) + " units, more than a line of the text form holds");
    }
}

} // namespace Vorn
