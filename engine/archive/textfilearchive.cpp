#include "engine/archive/textfilearchive.h"

#include "engine/archive/archiveform_impl.h"
#include "engine/archive/checksum.h"
#include "engine/archive/textline.h"
#include "engine/string/scan.h"

#include <algorithm>

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

// Whether the label was found. If so, any other number of stored fields fires its check.
bool CheckResult(int stored, int expected) {
    if (stored != kNoLabel) {
        CheckAssert(stored == expected, kResultChecks[expected]);
    }
    return stored != kNoLabel;
}

// The forms of values, for both kinds of scanner.
struct PairForm {
    template <class AnyScanner>
    static void Scan(AnyScanner& scanner, std::array<std::int32_t, 2>& value) {
        scanner.Literal(u'[').Blank().Int(value[0]).Blank().Literal(u',').Blank().Int(value[1]).Blank().Literal(u']');
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
    static void Scan(AnyScanner& scanner, std::array<std::int32_t, 1>& value) {
        scanner.Int(value[0]);
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
    static void Scan(AnyScanner& scanner, std::array<float, 1>& value) {
        scanner.Float(value[0]);
    }
};

// A Vector3, a Quad and a matrix row.
struct FloatsForm {
    template <class AnyScanner, std::size_t N>
    static void Scan(AnyScanner& scanner, std::array<float, N>& values) {
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

// Floats followed by their bits, which replace the decimals.
template <std::size_t N>
void ScanFloatBits(Scanner& scanner, std::array<float, N>& values) {
    std::array<float, N> decimals{};
    FloatsForm::Scan(scanner.Blank(), decimals);
    scanner.Blank().Word(u"Bits=[");
    for (float& value : values) {
        std::int32_t bits = BitsOf(value);
        scanner.Blank().Int(bits).Blank().Literal(&value != &values.back() ? u',' : u']');
        value = std::bit_cast<float>(bits);
    }
}

// Two decimals, since they need not be exact, and then the bits.
template <class Line, std::size_t N>
void PutFloatBits(Line& line, const std::array<float, N>& values) {
    line.Literal(" [");
    for (const float value : values) {
        line.Literal(" ").Double(static_cast<double>(value), 2);
    }
    line.Literal(" ] Bits=[ ");
    for (const float& value : values) {
        line.Int(BitsOf(value));
        if (&value != &values.back()) {
            line.Literal(" , ");
        }
    }
    line.Literal(" ]");
}

} // namespace

TextFileArchive::TextFileArchive(File* _file, bool _hasFloatBits) : ArchiveForm(_file, _hasFloatBits) {}

TextFileArchive::~TextFileArchive() = default;

// Reads a value by its form and returns how many fields were stored, or kNoLabel.
template <class Form, class Value>
VORN_RARE int TextFileArchive::ScanForm(Label label, Value& value) {
    const char16_t* text = FindLabel(label);
    if (text == nullptr) {
        return kNoLabel;
    }
    Scanner scanner(RestOfLine(text));
    Form::Scan(scanner, value);
    return scanner.Stored();
}

// Reads a value of as many fields by its form; false if there was no label.
template <class Form, class Value>
VORN_ALWAYS_INLINE bool TextFileArchive::ReadForm(Label label, Value& value, int fields) {
    Value plain;
    if (ReadPlainLine(label, [&](PlainScanner& scanner) { Form::Scan(scanner.Blank(), plain); })) [[likely]] {
        value = plain;
        return true;
    }
    return CheckResult(ScanForm<Form>(label, value), fields);
}

template <std::size_t N>
VORN_RARE bool TextFileArchive::ReadFloatBits(Label label, std::array<float, N>& values) {
    const char16_t* text = FindLabel(label);
    if (text == nullptr) {
        return false;
    }
    Scanner scanner(RestOfLine(text));
    ScanFloatBits(scanner, values);
    CheckResult(scanner.Stored(), 2 * static_cast<int>(N));
    return true;
}

// The line of a label alone.
VORN_ALWAYS_INLINE bool TextFileArchive::FindRecord(Label label) {
    return ReadPlainLine(label, [](PlainScanner&) {}) || FindLabel(label) != nullptr;
}

template <WordValue Value>
VORN_ALWAYS_INLINE void TextFileArchive::ReadValue(Label label, Value& value) {
    Words<Value> words = ToWords(value);
    constexpr int kFields = static_cast<int>(words.size());
    bool isRead = false;
    if constexpr (kIsInts<Value>) {
        isRead = ReadForm<std::conditional_t<kFields == 1, IntForm, PairForm>>(label, words, kFields);
    } else {
        isRead = hasFloatBits ? ReadFloatBits(label, words) : ReadForm<FloatsForm>(label, words, kFields);
    }
    if (isRead) {
        value = FromWords<Value>(words);
        checkSum += CheckSumOf(words);
    }
}

// Each row has a line of its own without a label, so that any line is read as the row.
template <MatrixValue Value>
void TextFileArchive::ReadValue(Label label, Value& value) {
    if (!FindRecord(label)) {
        return;
    }
    for (auto& row : value.rows) {
        TakeLine();
        Scanner scanner(CurrentLine());
        auto words = std::to_array(row);
        if (hasFloatBits) {
            ScanFloatBits(scanner, words);
        } else {
            FloatsForm::Scan(scanner.Blank(), words);
        }
        CheckResult(scanner.Stored(), static_cast<int>(hasFloatBits ? 2 * words.size() : words.size()));
        std::copy(words.begin(), words.end(), row);
        checkSum += CheckSumOf(words);
    }
}

void TextFileArchive::ReadValue(Label label, float& value) {
    std::array<float, 1> words = {value};
    if (!hasFloatBits) [[likely]] {
        if (!ReadForm<FloatForm>(label, words, 1)) {
            return;
        }
    } else if (const char16_t* text = FindLabel(label)) {
        Scanner scanner(RestOfLine(text));
        float decimals = 0.0f;
        std::int32_t bits = BitsOf(value);
        scanner.Float(decimals).Blank().Word(u"Bits=").Int(bits);
        CheckResult(scanner.Stored(), 2);
        words[0] = std::bit_cast<float>(bits);
    } else {
        return;
    }
    value = words[0];
    checkSum += FloatCheckSum(value);
}

void TextFileArchive::ReadValue(Label label, Color& value) {
    std::uint32_t packed = 0;
    if (ReadPlainLine(label, [&](PlainScanner& scanner) { HexForm::Scan(scanner.Blank(), packed); }) ||
        ScanForm<HexForm>(label, packed) == 1) {
        value = Color::FromUInt(packed);
    }
}

void TextFileArchive::ReadValue(Label label, Rectangle& value) {
    Extent extent;
    if (ReadForm<ExtentForm>(label, extent, 4)) {
        value = Rectangle::FromExtent(extent.x, extent.y, extent.width, extent.height);
        checkSum += CheckSumOf(ToWords(value));
    }
}

void TextFileArchive::ReadValue(Label label, std::int64_t& value) {
    if (const char16_t* text = FindLabel(label)) {
        CheckResult(Scanner(RestOfLine(text)).Int64(value).Stored(), 1);
    }
}

void TextFileArchive::ReadValue(Label label, Bool& value) {
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

void TextFileArchive::ReadValue(Label label, double& value) {
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

void TextFileArchive::Read(Label label, char16_t* buffer, int bufferSize) {
    if (ReadPlainLine(label, [&](PlainScanner& scanner) { scanner.Blank().Quoted(buffer, bufferSize); })) {
        return;
    }
    const char16_t* text = FindLabel(label);
    if (text == nullptr) {
        return;
    }
    const std::u16string_view rest = RestOfLine(text);
    const char16_t* end = rest.data() + rest.size();
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

// Writes a line: a label and what `put` adds.
template <class Put>
VORN_ALWAYS_INLINE void TextFileArchive::WriteLine(Label label, Put put) {
    TextLine<LineContent::Plain> line(*file, m_TabDepth, label);
    put(line);
    if (!line.End()) [[unlikely]] {
        WriteLineSlowly(label, put);
    }
}

template <class Put>
VORN_RARE void TextFileArchive::WriteLineSlowly(Label label, Put put) {
    TextLine<LineContent::Any> line(*file, m_TabDepth, label);
    put(line);
    line.End();
}

template <std::size_t N>
VORN_ALWAYS_INLINE void TextFileArchive::WriteFloats(Label label, const std::array<float, N>& values) {
    if (hasFloatBits) [[unlikely]] {
        WriteLineSlowly(label, [&values](auto& line) { PutFloatBits(line, values); });
        return;
    }
    WriteLine(label, [values](auto& line) {
        line.Literal(" [");
        for (const float value : values) {
            line.Literal(" ").Float(value);
        }
        line.Literal(" ]");
    });
}

template <WordValue Value>
VORN_ALWAYS_INLINE void TextFileArchive::WriteValue(Label label, const Value& value) {
    const Words<Value> words = ToWords(value);
    if constexpr (kIsFloats<Value>) {
        WriteFloats(label, words);
    } else if constexpr (words.size() == 1) {
        WriteLine(label, [words](auto& line) { line.Literal(" ").Int(words[0]); });
    } else {
        WriteLine(label, [words](auto& line) {
            line.Literal(" [ ").Int(words[0]).Literal(" , ").Int(words[1]).Literal(" ]");
        });
    }
}

template <MatrixValue Value>
void TextFileArchive::WriteValue(Label label, const Value& value) {
    CheckAssert(label.data() != nullptr, "label != NULL");
    WriteLine(label, [](auto&) {});
    ++m_TabDepth;
    for (const auto& row : value.rows) {
        WriteFloats({}, std::to_array(row));
    }
    CheckAssert(m_TabDepth > 0, "m_TabDepth > 0");
    --m_TabDepth;
}

void TextFileArchive::WriteValue(Label label, const float& value) {
    if (hasFloatBits) [[unlikely]] {
        WriteLineSlowly(label, [value](auto& line) {
            line.Literal(" ").Double(static_cast<double>(value), 2).Literal(" Bits=").Int(BitsOf(value));
        });
        return;
    }
    WriteLine(label, [value](auto& line) { line.Literal(" ").Float(value); });
}

void TextFileArchive::WriteValue(Label label, const Color& value) {
    WriteLine(label, [packed = value.ToUInt()](auto& line) { line.Literal(" ").Hex(packed); });
}

void TextFileArchive::WriteValue(Label label, const Rectangle& value) {
    WriteLine(label, [value](auto& line) {
        line.Literal(" [ ").Int(value.left).Literal(" , ").Int(value.top).Literal(" , ");
        line.Int(value.Width()).Literal(" , ").Int(value.Height()).Literal(" ]");
    });
}

void TextFileArchive::WriteValue(Label label, const std::int64_t& value) {
    WriteLineSlowly(label, [value](auto& line) { line.Literal(" ").Int64(value); });
}

void TextFileArchive::WriteValue(Label label, const Bool& value) {
    WriteLine(label, [value](auto& line) { line.Text(value ? u" TRUE" : u" FALSE"); });
}

void TextFileArchive::WriteValue(Label label, const double& value) {
    WriteLineSlowly(label, [value, this](auto& line) {
        if (hasFloatBits) {
            line.Literal(" ").Double(value, 2).Literal(" Bits=").Int64(std::bit_cast<std::int64_t>(value));
        } else {
            line.Literal(" ").Double(value);
        }
    });
}

void TextFileArchive::Write(Label label, const char16_t* text, int) {
    WriteLine(label, [text](auto& line) { line.Literal(" \"").Text(text).Literal("\""); });
}

void TextFileArchive::Write(Label label, const Archivable& value) {
    WriteLine(label, [](auto&) {});
    ++m_TabDepth;
    value.Write(*this);
    CheckAssert(m_TabDepth > 0, "m_TabDepth > 0");
    --m_TabDepth;
}

} // namespace Vorn
