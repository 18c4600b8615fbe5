#include "engine/archive/textfilearchive.h"

#include "engine/archive/checksum.h"
#include "engine/core/reporting.h"
#include "engine/string/ascii.h"
#include "engine/string/numbertext.h"
#include "engine/string/scan.h"

#include <algorithm>
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

void CheckResult(const Scanner& scanner, int expected) {
    CheckAssert(scanner.Stored() == expected, kResultChecks[expected]);
}

Scanner& Literals(Scanner& scanner, std::u16string_view units) {
    for (const char16_t unit : units) {
        scanner.Literal(unit);
    }
    return scanner;
}

std::int32_t BitsOf(float value) {
    return std::bit_cast<std::int32_t>(value);
}

} // namespace

// A line on its way to the file. Label and text are cut where they alone would fill a line; so the room suffices for
// them and for the numbers of any form, and only the finished line has to be held against the capacity.
class TextFileArchive::Line {
public:
    explicit Line(Label label) { Text(label); }
    Line(const Line&) = delete;
    Line& operator=(const Line&) = delete;

    Line& Text(std::u16string_view text) {
        const std::size_t count = std::min<std::size_t>(text.size(), kLineCapacity);
        std::memcpy(cursor, text.data(), count * sizeof(char16_t));
        return Put(cursor + count);
    }
    template <std::size_t N>
    Line& Literal(const char16_t (&text)[N]) {
        std::memcpy(cursor, text, (N - 1) * sizeof(char16_t));
        return Put(cursor + N - 1);
    }
    Line& Int(std::int32_t value) { return Put(PutInt(cursor, value)); }
    Line& Int64(std::int64_t value) { return Put(PutInt64(cursor, value)); }
    Line& Hex(std::uint32_t value) { return Put(PutHex(cursor, value)); }
    Line& Float(float value) { return Put(PutFixed6(cursor, value)); }
    Line& Double(double value, int places = 6) { return Put(PutFixed(cursor, value, places)); }

    // The finished line, cut at the capacity with its check.
    std::u16string_view View() const {
        constexpr std::size_t kLimit = kLineCapacity - 1;
        const auto length = static_cast<std::size_t>(cursor - units);
        CheckAssert(length <= kLimit, "! FAILED( hr )");
        return {units, std::min(length, kLimit)};
    }

private:
    static constexpr int kNumbersRoom = 2 * kNumberTextCapacity;

    Line& Put(char16_t* end) {
        cursor = end;
        return *this;
    }

    char16_t units[2 * kLineCapacity + kNumbersRoom];
    char16_t* cursor = units;
};

void TextFileArchive::Put(const Line& line) {
    file->PrintLine(m_TabDepth, line.View());
}

// Makes the next line the current one, or the waiting one again. At the end of the file the last one stays.
void TextFileArchive::TakeLine() {
    const bool isFresh = !m_CurrentLineUnread && !file->GetString(currentLine.Buffer(), currentLineLength);
    if (!isFresh) {
        CountIdleRead();
    }
    ++lineNumber;
    m_CurrentLineUnread = false;
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

// The form of a Vector3, a Quad and a matrix row. The bits, where the archive has them, replace the decimals.
template <int N>
void TextFileArchive::ReadFloats(const char16_t* text, float* const (&values)[N]) {
    Scanner scanner(RestOfLine(text));
    scanner.Blank().Literal(u'[');
    if (hasFloatBits) {
        float decimals = 0.0f;
        for (int i = 0; i < N; ++i) {
            scanner.Float(decimals);
        }
        Literals(Literals(scanner.Blank(), u"]").Blank(), u"Bits=[");
        for (int i = 0; i < N; ++i) {
            std::int32_t bits = BitsOf(*values[i]);
            scanner.Blank().Int(bits).Blank().Literal(i + 1 < N ? u',' : u']');
            *values[i] = std::bit_cast<float>(bits);
        }
    } else {
        for (float* value : values) {
            scanner.Float(*value);
        }
    }
    CheckResult(scanner, hasFloatBits ? 2 * N : N);
    for (const float* value : values) {
        checkSum += FloatCheckSum(*value);
    }
}

template <int N>
void TextFileArchive::ReadRows(Label label, float (&rows)[N][N]) {
    if (FindLabel(label) == nullptr) {
        return;
    }
    for (float(&row)[N] : rows) {
        TakeLine();
        if constexpr (N == 3) {
            ReadFloats(currentLine.Units(), {&row[0], &row[1], &row[2]});
        } else {
            ReadFloats(currentLine.Units(), {&row[0], &row[1], &row[2], &row[3]});
        }
    }
}

void TextFileArchive::Read(Label label, Color& value) {
    const char16_t* text = FindLabel(label);
    std::uint32_t packed = 0;
    if (text != nullptr && Scanner(RestOfLine(text)).Hex(packed).Stored() == 1) {
        value = Color::FromUInt(packed);
    }
}

void TextFileArchive::Read(Label label, Rectangle& value) {
    const char16_t* text = FindLabel(label);
    if (text == nullptr) {
        return;
    }
    std::int32_t x = -1;
    std::int32_t y = -1;
    std::int32_t width = -1;
    std::int32_t height = -1;
    Scanner scanner(RestOfLine(text));
    scanner.Literal(u'[').Int(x).Blank().Literal(u',').Int(y).Blank().Literal(u',').Int(width).Blank().Literal(u',');
    scanner.Int(height);
    CheckResult(scanner, 4);
    value = Rectangle::FromExtent(x, y, width, height);
    for (const std::int32_t edge : {value.left, value.right, value.bottom, value.top}) {
        checkSum += static_cast<std::uint32_t>(edge);
    }
}

void TextFileArchive::Read(Label label, Size& value) {
    Point point{value.width, value.height};
    Read(label, point);
    value = {point.x, point.y};
}

void TextFileArchive::Read(Label label, Point& value) {
    const char16_t* text = FindLabel(label);
    if (text == nullptr) {
        return;
    }
    Scanner scanner(RestOfLine(text));
    scanner.Literal(u'[').Int(value.x).Blank().Literal(u',').Int(value.y);
    CheckResult(scanner, 2);
    checkSum += static_cast<std::uint32_t>(value.x) + static_cast<std::uint32_t>(value.y);
}

void TextFileArchive::Read(Label label, Quad& value) {
    if (const char16_t* text = FindLabel(label)) {
        ReadFloats(text, {&value.x, &value.y, &value.z, &value.w});
    }
}

void TextFileArchive::Read(Label label, Matrix44& value) {
    ReadRows(label, value.rows);
}

void TextFileArchive::Read(Label label, Matrix33& value) {
    ReadRows(label, value.rows);
}

void TextFileArchive::Read(Label label, Vector3& value) {
    if (const char16_t* text = FindLabel(label)) {
        ReadFloats(text, {&value.x, &value.y, &value.z});
    }
}

void TextFileArchive::Read(Label label, char16_t* buffer, int bufferSize) {
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
        CheckResult(Scanner(RestOfLine(text)).Int64(value), 1);
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
        Literals(scanner.Double(decimals).Blank(), u"Bits=").Int64(bits);
        CheckResult(scanner, 2);
        value = std::bit_cast<double>(bits);
    } else {
        CheckResult(scanner.Double(value), 1);
    }
    checkSum += DoubleCheckSum(value);
}

void TextFileArchive::Read(Label label, float& value) {
    const char16_t* text = FindLabel(label);
    if (text == nullptr) {
        return;
    }
    Scanner scanner(RestOfLine(text));
    if (hasFloatBits) {
        float decimals = 0.0f;
        std::int32_t bits = BitsOf(value);
        Literals(scanner.Float(decimals).Blank(), u"Bits=").Int(bits);
        CheckResult(scanner, 2);
        value = std::bit_cast<float>(bits);
    } else {
        CheckResult(scanner.Float(value), 1);
    }
    checkSum += FloatCheckSum(value);
}

void TextFileArchive::Read(Label label, std::int32_t& value) {
    if (const char16_t* text = FindLabel(label)) {
        CheckResult(Scanner(RestOfLine(text)).Int(value), 1);
        checkSum += static_cast<std::uint32_t>(value);
    }
}

void TextFileArchive::Read(Label label, std::uint32_t& value) {
    auto number = static_cast<std::int32_t>(value);
    Read(label, number);
    value = static_cast<std::uint32_t>(number);
}

void TextFileArchive::Read(Label label, SingleLineArchivable& value) {
    value.Read(label, *this);
}

void TextFileArchive::Read(Label label, Archivable& value, std::int32_t _version) {
    if (FindLabel(label) != nullptr) {
        value.Read(*this, _version);
    }
}

void TextFileArchive::Read(Label label, Archivable& value) {
    if (FindLabel(label) != nullptr) {
        value.Read(*this);
    }
}

template <class... Floats>
void TextFileArchive::PutFloats(Line& line, Floats... values) const {
    line.Literal(u" [");
    if (!hasFloatBits) {
        (line.Literal(u" ").Float(values), ...);
        line.Literal(u" ]");
        return;
    }
    (line.Literal(u" ").Double(static_cast<double>(values), 2), ...);
    line.Literal(u" ] Bits=[");
    bool isFirst = true;
    ((isFirst ? line.Literal(u" ") : line.Literal(u" , "), line.Int(BitsOf(values)), isFirst = false), ...);
    line.Literal(u" ]");
}

template <int N>
void TextFileArchive::WriteRows(Label label, const float (&rows)[N][N]) {
    CheckAssert(label.data() != nullptr, "label != NULL");
    Put(Line(label));
    ++m_TabDepth;
    for (const float(&row)[N] : rows) {
        Line line({});
        if constexpr (N == 3) {
            PutFloats(line, row[0], row[1], row[2]);
        } else {
            PutFloats(line, row[0], row[1], row[2], row[3]);
        }
        Put(line);
    }
    CheckAssert(m_TabDepth > 0, "m_TabDepth > 0");
    --m_TabDepth;
}

void TextFileArchive::Write(Label label, const Color& value) {
    Put(Line(label).Literal(u" ").Hex(value.ToUInt()));
}

void TextFileArchive::Write(Label label, const Rectangle& value) {
    Line line(label);
    line.Literal(u" [ ").Int(value.left).Literal(u" , ").Int(value.top).Literal(u" , ");
    Put(line.Int(value.Width()).Literal(u" , ").Int(value.Height()).Literal(u" ]"));
}

void TextFileArchive::Write(Label label, const Size& value) {
    Write(label, Point{value.width, value.height});
}

void TextFileArchive::Write(Label label, const Point& value) {
    Put(Line(label).Literal(u" [ ").Int(value.x).Literal(u" , ").Int(value.y).Literal(u" ]"));
}

void TextFileArchive::Write(Label label, const Quad& value) {
    Line line(label);
    PutFloats(line, value.x, value.y, value.z, value.w);
    Put(line);
}

void TextFileArchive::Write(Label label, const Matrix44& value) {
    WriteRows(label, value.rows);
}

void TextFileArchive::Write(Label label, const Matrix33& value) {
    WriteRows(label, value.rows);
}

void TextFileArchive::Write(Label label, const Vector3& value) {
    Line line(label);
    PutFloats(line, value.x, value.y, value.z);
    Put(line);
}

void TextFileArchive::Write(Label label, const char16_t* text, int) {
    Put(Line(label).Literal(u" \"").Text(text).Literal(u"\""));
}

void TextFileArchive::Write(Label label, const std::int64_t& value) {
    Put(Line(label).Literal(u" ").Int64(value));
}

void TextFileArchive::Write(Label label, const Bool& value) {
    Put(Line(label).Text(value ? u" TRUE" : u" FALSE"));
}

void TextFileArchive::Write(Label label, const double& value) {
    Line line(label);
    if (hasFloatBits) {
        line.Literal(u" ").Double(value, 2).Literal(u" Bits=").Int64(std::bit_cast<std::int64_t>(value));
    } else {
        line.Literal(u" ").Double(value);
    }
    Put(line);
}

void TextFileArchive::Write(Label label, const float& value) {
    Line line(label);
    if (hasFloatBits) {
        line.Literal(u" ").Double(static_cast<double>(value), 2).Literal(u" Bits=").Int(BitsOf(value));
    } else {
        line.Literal(u" ").Float(value);
    }
    Put(line);
}

void TextFileArchive::Write(Label label, const std::int32_t& value) {
    Put(Line(label).Literal(u" ").Int(value));
}

void TextFileArchive::Write(Label label, const std::uint32_t& value) {
    Put(Line(label).Literal(u" ").Int(static_cast<std::int32_t>(value)));
}

void TextFileArchive::Write(Label label, const SingleLineArchivable& value) {
    value.Write(label, *this);
}

void TextFileArchive::Write(Label label, const Archivable& value) {
    Put(Line(label));
    ++m_TabDepth;
    value.Write(*this);
    CheckAssert(m_TabDepth > 0, "m_TabDepth > 0");
    --m_TabDepth;
}

} // namespace Vorn
