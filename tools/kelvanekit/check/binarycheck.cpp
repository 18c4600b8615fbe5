#include "tools/kelvanekit/check/binarycheck.h"

#include "engine/archive/archiveheader.h"
#include "engine/archive/archiveversion.h"
#include "engine/core/abnormalend.h"
#include "engine/core/reporting.h"
#include "engine/string/utf8.h"
#include "tools/kelvanekit/check/failedcheck.h"
#include "tools/kelvanekit/check/knownnames.h"
#include "tools/kelvanekit/check/loadedcontent.h"
#include "tools/kelvanekit/check/readscope.h"
#include "tools/kelvanekit/check/sourcetext.h"
#include "tools/kelvanekit/findings/findingcodes.h"
#include "tools/kelvanekit/findings/nearest.h"

#include <algorithm>
#include <array>
#include <bit>
#include <cstring>
#include <utility>

namespace Vorn {

namespace {

constexpr std::size_t kMostLineUnits = 1022;
constexpr std::size_t kMostFindings = 1000;

std::string Quoted(std::u16string_view text) {
    return '`' + ToUtf8(text.substr(0, 80)) + '`';
}

// Runs a list of fields against the bytes of a binary file. The first field that is not there ends it.
class BinaryReader final : public Archive, private FieldObserver, private ReportHandler {
public:
    BinaryReader(std::string_view _bytes, const KnownNames* _names) : bytes(_bytes), names(_names) {
        SetObserver(this);
    }

    Findings Check(ContentKind kind) {
        LoadedContent content(kind);
        const CatchableEnd catchableEnd;
        const HandlerScope scope(this);
        try {
            ReadHeader();
            content.Read(*this);
            if (place < bytes.size()) {
                Add(Code("trailing-content"), place, {},
                    std::to_string(bytes.size() - place) + " bytes stand behind the last field");
            }
        } catch (const Stop&) {
            // Everything behind is missing, which was noted.
        } catch (const AbnormalEnd&) {
            Add(Code("ends-abnormally"), fieldPlace, Path(), "a conversion ends abnormally here");
        }
        std::ranges::stable_sort(findings, {}, [](const Finding& finding) { return finding.place.offset; });
        return std::move(findings);
    }

    using Archive::Read;
    using Archive::Write;

    void Read(Label label, Color& value) override {
        ReadScalars(label, value.red, value.green, value.blue, value.alpha);
    }
    void Read(Label label, Rectangle& value) override {
        ReadScalars(label, value.left, value.top, value.right, value.bottom);
    }
    void Read(Label label, Size& value) override { ReadScalars(label, value.width, value.height); }
    void Read(Label label, Point& value) override { ReadScalars(label, value.x, value.y); }
    void Read(Label label, Quad& value) override { ReadScalars(label, value.x, value.y, value.z, value.w); }
    void Read(Label label, Matrix44& value) override { ReadRows(label, value.rows); }
    void Read(Label label, Matrix33& value) override { ReadRows(label, value.rows); }
    void Read(Label label, Vector3& value) override { ReadScalars(label, value.x, value.y, value.z); }
    void Read(Label label, char16_t* buffer, int bufferSize) override;
    void Read(Label label, std::int64_t& value) override { ReadScalars(label, value); }
    void Read(Label label, Bool& value) override {
        std::uint8_t byte = 0;
        ReadScalars(label, byte);
        value = Bool::FromByte(byte);
        if (byte > 1) {
            Add(Code("bad-boolean"), fieldPlace, Path(),
                "the byte " + std::to_string(byte) + " is neither 0 nor 1: it counts as TRUE");
        }
    }
    void Read(Label label, double& value) override { ReadScalars(label, value); }
    void Read(Label label, float& value) override { ReadScalars(label, value); }
    void Read(Label label, std::int32_t& value) override { ReadScalars(label, value); }
    void Read(Label label, std::uint32_t& value) override {
        ReadScalars(label, value);
        if (std::exchange(isCount, false)) {
            value = static_cast<std::uint32_t>(CountOf(static_cast<std::int32_t>(value)));
        }
    }
    void Read(Label label, SingleLineArchivable& value) override {
        nextName = value.GetNameKind();
        value.Read(label, *this);
        nextName = NameKind::None;
    }
    void Read(Label label, Archivable& value, std::int32_t _version) override {
        ReadGroup(label, [&] { value.Read(*this, _version); });
    }
    void Read(Label label, Archivable& value) override {
        ReadGroup(label, [&] { value.Read(*this); });
    }

    void Write(Label, const Color&) override {}
    void Write(Label, const Rectangle&) override {}
    void Write(Label, const Size&) override {}
    void Write(Label, const Point&) override {}
    void Write(Label, const Quad&) override {}
    void Write(Label, const Matrix44&) override {}
    void Write(Label, const Matrix33&) override {}
    void Write(Label, const Vector3&) override {}
    void Write(Label, const char16_t*, int) override {}
    void Write(Label, const std::int64_t&) override {}
    void Write(Label, const Bool&) override {}
    void Write(Label, const double&) override {}
    void Write(Label, const float&) override {}
    void Write(Label, const std::int32_t&) override {}
    void Write(Label, const std::uint32_t&) override {}
    void Write(Label, const SingleLineArchivable&) override {}
    void Write(Label, const Archivable&) override {}

private:
    struct Stop {};

    struct List {
        std::size_t depth;
        std::int32_t entry;
        ListShape shape;
        std::int32_t count;
    };

    void OnEnum(const EnumTable& table) override { nextTable = &table; }
    void OnName(NameKind kind) override { nextName = kind; }
    void OnList(const ListShape& shape) override {
        isCount = true;
        nextList = shape;
    }
    bool OnEntry(std::int32_t entry) override {
        lists.back().entry = entry;
        return true;
    }
    void OnListEnd() override { lists.pop_back(); }
    void Handle(const char*, int, std::u16string_view text, bool isFailure) override;

    void ReadHeader() {
        const bool hasVersion = bytes.size() > kBinaryMarkSize && bytes[kBinaryMarkSize] == kVersionMark;
        place = std::min<std::size_t>(bytes.size(), hasVersion ? sizeof kBinaryHeader : kOldBinaryHeaderSize);
        std::int32_t fileVersion = kNoVersion;
        if (hasVersion) {
            Read(kVersionLabel, fileVersion);
        }
        SetVersion(fileVersion);
        if (fileVersion > kArchiveVersion) {
            Add(Code("newer-version"), fieldPlace, Path(),
                "version " + std::to_string(fileVersion) + " is later than " + std::to_string(kArchiveVersion));
        } else if (fileVersion < kArchiveVersion) {
            Add(Code("older-version"), fieldPlace, Path(),
                hasVersion ? "the file is of version " + std::to_string(fileVersion) : "the file has no version");
        }
    }

    // The key of the field that is read, with all around it.
    std::string Path() const {
        std::string path;
        for (const std::string& group : groups) {
            path += group + '.';
        }
        return path + KeyWithEntry(fieldLabel);
    }

    std::string KeyWithEntry(Label label) const {
        const bool isEntry = !lists.empty() && lists.back().depth == groups.size() && lists.back().entry >= 0;
        return ToUtf8(label) + (isEntry ? '[' + std::to_string(lists.back().entry) + ']' : "");
    }

    void Begin(Label label) {
        fieldLabel = label;
        fieldPlace = place;
        latest[latestCount++ % latest.size()] = {label, place, groups.size()};
    }

    template <class Scalar>
    void Take(Scalar& value) {
        if (bytes.size() - place < sizeof value) {
            Truncated();
        }
        std::array<unsigned char, sizeof value> stored;
        std::memcpy(stored.data(), bytes.data() + place, sizeof value);
        if constexpr (std::endian::native == std::endian::big) {
            std::ranges::reverse(stored);
        }
        value = std::bit_cast<Scalar>(stored);
        place += sizeof value;
    }

    [[noreturn]] void Truncated() {
        Add(Code("truncated"), place, Path(),
            "the file ends inside of `" + ToUtf8(fieldLabel) + "`: it and all behind it keep their defaults");
        throw Stop();
    }

    template <class... Scalars>
    void ReadScalars(Label label, Scalars&... values) {
        Begin(label);
        (Take(values), ...);
    }

    template <std::size_t N>
    void ReadRows(Label label, float (&rows)[N][N]) {
        Begin(label);
        for (auto& row : rows) {
            for (float& value : row) {
                Take(value);
            }
        }
    }

    template <class ReadRecord>
    void ReadGroup(Label label, ReadRecord readRecord) {
        groups.push_back(KeyWithEntry(label));
        readRecord();
        groups.pop_back();
    }

    std::int32_t CountOf(std::int32_t count);
    void CheckText(std::u16string_view text);
    void CheckRow(StringBuffer buffer, const EnumTable& table);
    Finding& Add(const FindingCode* code, std::size_t offset, std::string key, std::string message);

    const std::string_view bytes;
    const KnownNames* const names;
    std::size_t place = 0;
    Label fieldLabel;
    std::size_t fieldPlace = 0;
    struct Latest {
        Label label;
        std::size_t place;
        std::size_t depth;
    };
    std::array<Latest, 64> latest;
    std::size_t latestCount = 0;
    const EnumTable* nextTable = nullptr;
    NameKind nextName = NameKind::None;
    ListShape nextList{};
    bool isCount = false;
    std::vector<std::string> groups;
    std::vector<List> lists;
    Findings findings;
    Finding surplus;
};

// The findings of damaged bytes end somewhere.
Finding& BinaryReader::Add(const FindingCode* code, std::size_t offset, std::string key, std::string message) {
    Finding& finding = findings.size() < kMostFindings ? findings.emplace_back() : surplus;
    finding = {};
    finding.code = code;
    finding.place.offset = static_cast<std::int64_t>(offset);
    finding.key = std::move(key);
    finding.message = std::move(message);
    return finding;
}

void BinaryReader::Handle(const char*, int, std::u16string_view text, bool isFailure) {
    const bool isFlawed =
        !lists.empty() &&
        (lists.back().shape.rule == ListRule::Exact ||
         (lists.back().shape.limit != ListShape::kUnlimited && lists.back().count > lists.back().shape.limit));
    if (!isFailure || isFlawed) {
        return;
    }
    const std::string expression(Trimmed(ToUtf8(text)));
    Label label = fieldLabel;
    std::size_t at = fieldPlace;
    for (std::size_t i = latestCount; i > latestCount - std::min(latestCount, latest.size()); --i) {
        const Latest& field = latest[(i - 1) % latest.size()];
        if (SpeaksOf(expression, field.label, false)) {
            label = field.label;
            at = field.place;
            break;
        }
    }
    const Label current = std::exchange(fieldLabel, label);
    Add(Code("unsuitable-value"), at, Path(), CheckMessage(expression));
    fieldLabel = current;
}

std::int32_t BinaryReader::CountOf(std::int32_t count) {
    const std::int32_t limit = nextList.limit;
    const std::string number = std::to_string(count);
    if (count < 0) {
        Add(Code("number-out-of-range"), fieldPlace, Path(), number + " is no count: the list becomes empty");
        count = 0;
    } else if (static_cast<std::size_t>(count) > bytes.size() - place) {
        Add(Code("count-mismatch"), fieldPlace, Path(),
            "the count is " + number + ", but only " + std::to_string(bytes.size() - place) + " bytes follow");
        throw Stop();
    } else if (limit != ListShape::kUnlimited && count > limit && nextList.rule != ListRule::Keyed) {
        Add(Code("list-too-long"), fieldPlace, Path(),
            "the list has " + number + " entries, and there is room for " + std::to_string(limit));
    }
    lists.push_back({groups.size(), -1, nextList, count});
    return count;
}

void BinaryReader::Read(Label label, char16_t* buffer, int bufferSize) {
    std::int32_t count = 0;
    ReadScalars(label, count);
    const std::size_t left = (bytes.size() - place) / sizeof(char16_t);
    if (count < 0 || static_cast<std::size_t>(count) > left) {
        Add(Code("truncated"), fieldPlace, Path(),
            "the text should have " + std::to_string(count) + " units, and " + std::to_string(left) + " are there");
        throw Stop();
    }
    std::u16string text(static_cast<std::size_t>(count), u'\0');
    for (char16_t& unit : text) {
        Take(unit);
    }
    if (count >= bufferSize) {
        Add(Code("text-too-long"), fieldPlace, Path(),
            "the text has " + std::to_string(count) + " units, and there is room for " +
                std::to_string(bufferSize - 1) + ": the rest is lost");
        text.resize(static_cast<std::size_t>(bufferSize) - 1);
    }
    buffer[text.copy(buffer, text.size())] = u'\0';
    CheckText(text);
    if (const EnumTable* table = std::exchange(nextTable, nullptr)) {
        CheckRow({buffer, bufferSize}, *table);
    }
    if (names != nullptr && nextName != NameKind::None && !text.empty() && !names->Has(nextName, text)) {
        Add(Code("unresolved-name"), fieldPlace, Path(),
            "there is no " + std::string(KnownNames::WhatIs(nextName)) + ' ' + Quoted(text));
    }
    nextName = NameKind::None;
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
    const std::size_t lineUnits = text.size() + fieldLabel.size() + 3;
    if (what != nullptr) {
        Add(Code("not-representable"), fieldPlace, Path(),
            "the text " + Quoted(text.substr(0, text.find(u'\0'))) + " has " + what +
                " in it, which the text form cannot hold");
    } else if (lineUnits > kMostLineUnits) {
        Add(Code("not-representable"), fieldPlace, Path(),
            "the text has " + std::to_string(text.size()) + " units, more than a line of the text form holds");
    }
}

void BinaryReader::CheckRow(StringBuffer buffer, const EnumTable& table) {
    const std::u16string text(TextIn(buffer.m_Buffer, buffer.m_BufferSize));
    const std::span<const std::u16string_view> rows(table.rows, static_cast<std::size_t>(table.rowCount));
    if (text == u"Invalid" || std::ranges::find(rows, text) != rows.end()) {
        return;
    }
    const std::size_t nearest = NearestOf(text, rows);
    Finding& finding =
        Add(Code("unknown-text"), fieldPlace, Path(), Quoted(text) + " is no text of this key: it becomes `Invalid`");
    if (nearest != kNoneNear) {
        finding.help = "did you mean " + Quoted(rows[nearest]) + "?";
    }
    StringBuffer out = buffer;
    Copy(out, nearest == kNoneNear ? u"Invalid" : rows[nearest]);
}

} // namespace

Findings CheckBinary(ContentKind kind, std::string_view bytes, const CheckOptions& options) {
    return BinaryReader(bytes, options.names).Check(kind);
}

} // namespace Vorn
