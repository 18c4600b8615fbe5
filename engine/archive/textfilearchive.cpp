#include "engine/archive/textfilearchive.h"

#include "engine/archive/checksum.h"
#include "engine/core/reporting.h"
#include "engine/string/ascii.h"
#include "engine/string/plainscan.h"
#include "engine/string/scan.h"

#include <algorithm>
#include <array>
#include <bit>

namespace Vorn {

namespace {

constexpr const char* kResultChecks[] = {"",
                                         "result == 1",
                                         "result == 2",
                                         "result == 3",
                                         "result == 4",
                                         "result == 5",
                                         "result == 6",
                                         "result == 7",
                                         "result == 8"};

constexpr int kNoLabel = -1;

// Whether there was a label; a scan behind it that stored another number of fields fires its check.
bool CheckResult(int stored, int expected) {
    if (stored != kNoLabel) {
        CheckAssert(stored == expected, kResultChecks[expected]);
    }
    return stored != kNoLabel;
}

// The forms of values, for both kinds of scanner.
struct PointForm {
    template <class AnyScanner>
    static void Scan(AnyScanner& scanner, Point& value) {
        scanner.Literal(u'[').Blank().Int(value.x).Blank().Literal(u',').Blank().Int(value.y).Blank().Literal(u']');
    }
};

struct Extent {
    std::int32_t x = -1;
    std::int32_t y = -1;
    std::int32_t width = -1;
    std::int32_t height = -1;
};

struct ExtentForm {
    template <class AnyScanner>
    static void Scan(AnyScanner& scanner, Extent& value) {
        scanner.Literal(u'[').Blank().Int(value.x).Blank().Literal(u',').Blank().Int(value.y).Blank().Literal(u',');
        scanner.Blank().Int(value.width).Blank().Literal(u',').Blank().Int(value.height).Blank().Literal(u']');
    }
};

struct IntForm {
    template <class AnyScanner>
    static void Scan(AnyScanner& scanner, std::int32_t& value) {
        scanner.Int(value);
    }
};

struct HexForm {
    template <class AnyScanner>
    static void Scan(AnyScanner& scanner, std::uint32_t& value) {
        scanner.Hex(value);
    }
};

struct FloatForm {
    template <class AnyScanner>
    static void Scan(AnyScanner& scanner, float& value) {
        scanner.Float(value);
    }
};

template <std::size_t N>
using Floats = std::array<float, N>;

// A Vector3, a Quad and a matrix row.
struct FloatsForm {
    template <class AnyScanner, std::size_t N>
    static void Scan(AnyScanner& scanner, Floats<N>& values) {
        scanner.Literal(u'[');
        for (float& value : values) {
            scanner.Blank().Float(value);
        }
        scanner.Blank().Literal(u']');
    }
};

std::int32_t BitsOf(float value) {
    return std::bit_cast<std::int32_t>(value);
}

// The same with the bits behind them, which replace the decimals.
template <std::size_t N>
void ScanFloatBits(Scanner& scanner, Floats<N>& values) {
    Floats<N> decimals{};
    FloatsForm::Scan(scanner.Blank(), decimals);
    scanner.Blank().Word(u"Bits=[");
    for (float& value : values) {
        std::int32_t bits = BitsOf(value);
        scanner.Blank().Int(bits).Blank().Literal(&value != &values.back() ? u',' : u']');
        value = std::bit_cast<float>(bits);
    }
}

} // namespace

// Makes the next line the current one, or the waiting one again. At the end of the file the last one stays.
void TextFileArchive::TakeLine() {
    KeepPlainLine();
    const bool isFresh = !m_CurrentLineUnread && !file->GetString(currentLine.Buffer(), currentLineLength);
    if (isFresh) {
        EndIdleRead();
    } else {
        CountIdleRead();
    }
    ++lineNumber;
    m_CurrentLineUnread = false;
    takesPlainLines = isFresh;
}

std::u16string_view TextFileArchive::RestOfLine(const char16_t* text) const {
    return {text, static_cast<std::size_t>(currentLine.Units() + currentLineLength - text)};
}

// The value behind the label of the next line, or null after a report.
const char16_t* TextFileArchive::FindLabel(Label label) {
    TakeLine();
    const char16_t* start = SkipWhiteSpace(currentLine.Units());
    const auto remaining = static_cast<std::size_t>(currentLine.Units() + kLineCapacity - 1 - start);
    if (label.size() <= remaining && std::memcmp(start, label.data(), label.size() * sizeof(char16_t)) == 0 &&
        IsWhiteSpace(start[label.size()])) [[likely]] {
        return SkipWhiteSpace(start + label.size());
    }
    ReportMissingLabel(label);
    m_CurrentLineUnread = true;
    takesPlainLines = false;
    return nullptr;
}

void TextFileArchive::ReportMissingLabel(Label label) const {
    ReportError(u"Text FileArchive missing Label.\n\nFile: %s\nLabel: %s\nLine Number:%d\nLine Contents:%s\n",
                file->GetName(), label, lineNumber, currentLine);
}

void TextFileArchive::ReportMissingQuote(Label label) const {
    ReportErrorAt(u"\" not found wrapping data string: %s\nFileName: %s\nLine #: %d\nLine Content: %s", label,
                  file->GetName(), lineNumber, currentLine);
}

// Takes a line whole from the file's bytes if it has the label and behind it what `scan` takes, all in the form that
// this class writes. Says false and takes nothing for every other line, which then goes the general road.
template <class Scan>
VORN_ALWAYS_INLINE bool TextFileArchive::TakePlain(Label label, Scan scan) {
    static_assert(kLongestPlainLine <= kLineCapacity);
    if (!takesPlainLines || !file->HasPlainText()) [[unlikely]] {
        return false;
    }
    const char* start = file->PeekText();
    PlainScanner scanner(start);
    scan(scanner.Tabs().Word(label));
    if (!scanner.LineEnd()) [[unlikely]] {
        return false;
    }
    file->SkipText(scanner.Cursor());
    plainLine = start;
    ++lineNumber;
    return true;
}

// The line that was taken last becomes the current one, as if it had come by the general road.
void TextFileArchive::KeepPlainLine() {
    if (plainLine == nullptr) {
        return;
    }
    std::string_view line(plainLine, static_cast<std::size_t>(file->PeekText() - plainLine));
    line.remove_suffix(line.ends_with("\r\n") ? 2 : 1);
    char16_t* units = currentLine.Buffer().m_Buffer;
    char16_t* end = std::copy(line.begin(), line.end(), units);
    *end++ = u'\n';
    *end = u'\0';
    currentLineLength = static_cast<int>(end - units);
    plainLine = nullptr;
}

// Reads a value by its form the general road and returns how many fields were stored, or kNoLabel.
template <class Form, class Value>
int TextFileArchive::ScanForm(Label label, Value& value) {
    const char16_t* text = FindLabel(label);
    if (text == nullptr) {
        return kNoLabel;
    }
    Scanner scanner(RestOfLine(text));
    Form::Scan(scanner, value);
    return scanner.Stored();
}

// Reads a value of as many fields by its form. Calls `take` with it if there was a label.
template <class Form, class Value, class Take>
VORN_ALWAYS_INLINE void TextFileArchive::ReadForm(Label label, const Value& start, int fields, Take take) {
    Value value = start;
    if (TakePlain(label, [&](PlainScanner& scanner) { Form::Scan(scanner.Blank(), value); })) [[likely]] {
        take(value);
    } else {
        ReadFormSlowly<Form>(label, start, fields, take);
    }
}

template <class Form, class Value, class Take>
VORN_RARE void TextFileArchive::ReadFormSlowly(Label label, Value value, int fields, Take take) {
    if (CheckResult(ScanForm<Form>(label, value), fields)) {
        take(value);
    }
}

template <std::size_t N, class Take>
VORN_ALWAYS_INLINE void TextFileArchive::ReadFloats(Label label, const Floats<N>& start, Take take) {
    const auto takeAll = [this, take](const Floats<N>& values) {
        take(values);
        checkSum += FloatCheckSum(values);
    };
    if (!hasFloatBits) [[likely]] {
        ReadForm<FloatsForm>(label, start, N, takeAll);
    } else if (const char16_t* text = FindLabel(label)) {
        Scanner scanner(RestOfLine(text));
        Floats<N> values = start;
        ScanFloatBits(scanner, values);
        CheckResult(scanner.Stored(), 2 * static_cast<int>(N));
        takeAll(values);
    }
}

template <class... Ints>
VORN_ALWAYS_INLINE void TextFileArchive::AddInts(Ints... ints) {
    checkSum += (static_cast<std::uint32_t>(ints) + ...);
}

// A row takes a line of its own, whatever stands there.
template <std::size_t N>
void TextFileArchive::ReadRow(float (&row)[N]) {
    TakeLine();
    Scanner scanner({currentLine.Units(), static_cast<std::size_t>(currentLineLength)});
    Floats<N> values = std::to_array(row);
    if (hasFloatBits) {
        ScanFloatBits(scanner, values);
    } else {
        FloatsForm::Scan(scanner.Blank(), values);
    }
    CheckResult(scanner.Stored(), static_cast<int>(hasFloatBits ? 2 * N : N));
    std::copy(values.begin(), values.end(), row);
    checkSum += FloatCheckSum(values);
}

template <std::size_t N>
void TextFileArchive::ReadRows(Label label, float (&rows)[N][N]) {
    if (FindRecord(label)) {
        for (float(&row)[N] : rows) {
            ReadRow(row);
        }
    }
}

// The line of a label alone.
VORN_ALWAYS_INLINE bool TextFileArchive::FindRecord(Label label) {
    return TakePlain(label, [](PlainScanner&) {}) || FindLabel(label) != nullptr;
}

void TextFileArchive::Read(Label label, Color& value) {
    std::uint32_t packed = 0;
    if (TakePlain(label, [&](PlainScanner& scanner) { HexForm::Scan(scanner.Blank(), packed); }) ||
        ScanForm<HexForm>(label, packed) == 1) {
        value = Color::FromUInt(packed);
    }
}

void TextFileArchive::Read(Label label, Rectangle& value) {
    ReadForm<ExtentForm>(label, Extent{}, 4, [this, &value](const Extent& extent) {
        value = Rectangle::FromExtent(extent.x, extent.y, extent.width, extent.height);
        AddInts(value.left, value.right, value.bottom, value.top);
    });
}

void TextFileArchive::Read(Label label, Size& value) {
    Point point{value.width, value.height};
    Read(label, point);
    value = {point.x, point.y};
}

void TextFileArchive::Read(Label label, Point& value) {
    ReadForm<PointForm>(label, value, 2, [this, &value](const Point& point) {
        value = point;
        AddInts(value.x, value.y);
    });
}

void TextFileArchive::Read(Label label, Quad& value) {
    ReadFloats(label, Floats<4>{value.x, value.y, value.z, value.w}, [&value](const Floats<4>& values) {
        value = {values[0], values[1], values[2], values[3]};
    });
}

void TextFileArchive::Read(Label label, Matrix44& value) {
    ReadRows(label, value.rows);
}

void TextFileArchive::Read(Label label, Matrix33& value) {
    ReadRows(label, value.rows);
}

void TextFileArchive::Read(Label label, Vector3& value) {
    ReadFloats(label, Floats<3>{value.x, value.y, value.z}, [&value](const Floats<3>& values) {
        value = {values[0], values[1], values[2]};
    });
}

void TextFileArchive::Read(Label label, char16_t* buffer, int bufferSize) {
    if (TakePlain(label, [&](PlainScanner& scanner) { scanner.Blank().Quoted(buffer, bufferSize); })) {
        return;
    }
    const char16_t* text = FindLabel(label);
    if (text == nullptr) {
        return;
    }
    const char16_t* end = currentLine.Units() + currentLineLength;
    const char16_t* opening = FindUnit(text, end, u'"');
    buffer[0] = u'\0';
    if (opening == end) {
        ReportMissingQuote(label);
        return;
    }
    const char16_t* quoted = opening + 1;
    const char16_t* closing = FindUnit(quoted, end, u'"');
    const int length = static_cast<int>(closing - quoted);
    for (int numCharsCopied = bufferSize; numCharsCopied <= length; ++numCharsCopied) {
        CheckAssert(numCharsCopied < bufferSize, "numCharsCopied < bufferSize");
    }
    const int kept = std::min(length, bufferSize - 1);
    std::copy_n(quoted, kept, buffer);
    buffer[kept] = u'\0';
    if (closing == end) {
        ReportMissingQuote(label);
    }
}

void TextFileArchive::Read(Label label, std::int64_t& value) {
    if (const char16_t* text = FindLabel(label)) {
        CheckResult(Scanner(RestOfLine(text)).Int64(value).Stored(), 1);
    }
}

void TextFileArchive::Read(Label label, Bool& value) {
    const char16_t* text = FindLabel(label);
    if (text == nullptr) {
        return;
    }
    const std::u16string_view word = RestOfLine(text);
    if (word.find(u"TRUE") != std::u16string_view::npos) {
        value = true;
    } else if (word.find(u"FALSE") != std::u16string_view::npos) {
        value = false;
    } else {
        CheckAssert(false, "false");
    }
    checkSum += value ? 1 : 0;
}

void TextFileArchive::Read(Label label, double& value) {
    const char16_t* text = FindLabel(label);
    if (text == nullptr) {
        return;
    }
    Scanner scanner(RestOfLine(text));
    if (hasFloatBits) {
        double decimals = 0.0;
        auto bits = std::bit_cast<std::int64_t>(value);
        scanner.Double(decimals).Blank().Word(u"Bits=").Int64(bits);
        value = std::bit_cast<double>(bits);
    } else {
        scanner.Double(value);
    }
    CheckResult(scanner.Stored(), hasFloatBits ? 2 : 1);
    checkSum += DoubleCheckSum(value);
}

void TextFileArchive::Read(Label label, float& value) {
    if (!hasFloatBits) [[likely]] {
        ReadForm<FloatForm>(label, value, 1, [this, &value](float read) {
            value = read;
            checkSum += FloatCheckSum(read);
        });
    } else if (const char16_t* text = FindLabel(label)) {
        Scanner scanner(RestOfLine(text));
        float decimals = 0.0f;
        std::int32_t bits = BitsOf(value);
        scanner.Float(decimals).Blank().Word(u"Bits=").Int(bits);
        CheckResult(scanner.Stored(), 2);
        value = std::bit_cast<float>(bits);
        checkSum += FloatCheckSum(value);
    }
}

void TextFileArchive::Read(Label label, std::int32_t& value) {
    ReadForm<IntForm>(label, value, 1, [this, &value](std::int32_t read) {
        value = read;
        AddInts(read);
    });
}

void TextFileArchive::Read(Label label, std::uint32_t& value) {
    ReadForm<IntForm>(label, static_cast<std::int32_t>(value), 1, [this, &value](std::int32_t read) {
        value = static_cast<std::uint32_t>(read);
        AddInts(read);
    });
}

void TextFileArchive::Read(Label label, SingleLineArchivable& value) {
    value.Read(label, *this);
}

void TextFileArchive::Read(Label label, Archivable& value, std::int32_t _version) {
    if (FindRecord(label)) {
        value.Read(*this, _version);
    }
}

void TextFileArchive::Read(Label label, Archivable& value) {
    if (FindRecord(label)) {
        value.Read(*this);
    }
}

} // namespace Vorn
