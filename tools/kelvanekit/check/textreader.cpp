#include "tools/kelvanekit/check/textreader.h"

#include "engine/archive/archiveheader.h"
#include "engine/archive/archiveversion.h"
#include "engine/string/utf8.h"
#include "tools/kelvanekit/check/readscope.h"
#include "tools/kelvanekit/findings/nearest.h"

#include <algorithm>
#include <utility>

namespace Vorn {

namespace {

constexpr std::u16string_view kInvalidText = u"Invalid";
constexpr std::size_t kMostProbes = 64;

// Entries that a list of unknown length is given room for.
constexpr std::int32_t kMostUncounted = 65536;

std::int32_t RowOf(std::u16string_view text, const EnumTable& table) {
    const auto* end = table.rows + table.rowCount;
    const auto* row = std::find(table.rows, end, text);
    return row == end ? kInvalidEnum : static_cast<std::int32_t>(row - table.rows);
}

std::u16string_view TextOfRow(const EnumTable& table, std::int32_t row) {
    return row >= 0 && row < table.rowCount ? table.rows[row] : kInvalidText;
}

} // namespace

TextReader::TextReader(const SourceText& _text, const TextHeader& _header, Mode _mode, const KnownNames* _names,
                       const Mends& mends)
    : text(_text), header(_header), mode(_mode), names(_names), cursor(_text.Start()), line(0) {
    for (const Mend& mend : mends) {
        (mend.IsOfLines() ? lineMends : askMends).push_back(mend);
    }
    std::ranges::stable_sort(askMends, {}, &Mend::ask);
    std::ranges::stable_sort(lineMends, {}, &Mend::line);
    if (header.firstLine > 0) {
        GoTo(header.firstLine);
    }
    UpdateStops();
    SetObserver(this);
}

bool TextReader::Read(LoadedContent& content) {
    const CatchableEnd catchableEnd;
    const HandlerScope scope(this);
    try {
        ReadVersion();
        ReadToEnd(content);
    } catch (const Stop&) {
        isUnclean = true;
    } catch (const AbnormalEnd&) {
        isUnclean = true;
        if (!isProbing) {
            mismatch.isAbnormalEnd = true;
            NoteMismatch({});
        }
    }
    return !isProbing && !isUnclean;
}

void TextReader::ReadVersion() {
    std::int32_t fileVersion = header.isOld ? kNoVersion : kArchiveVersion;
    if (header.hasVersion) {
        Read(kVersionLabel, fileVersion);
        fileVersion = isValueClean ? fileVersion : kArchiveVersion;
    }
    SetVersion(fileVersion);
    if (header.isSwapped) {
        GoTo(2);
        UpdateStops();
    }
}

// Blank lines at the end do no harm.
void TextReader::ReadToEnd(LoadedContent& content) {
    content.Read(*this);
    if (isProbing) {
        return;
    }
    isAtEnd = true;
    ApplyLineMends();
    if (Trimmed({cursor, static_cast<std::size_t>(text.End() - cursor)}).empty()) {
        return;
    }
    Mismatched({}, FieldKind::Record);
}

// Takes a line whole if it has the label and behind it what `scan` takes, all in the written form.
template <class Scan>
VORN_ALWAYS_INLINE bool TextReader::TakePlain(Label label, FieldKind kind, Scan scan) {
    if (askCount == stopAsk || line == stopLine) [[unlikely]] {
        return false;
    }
    PlainScanner scanner(cursor);
    scan(scanner.Tabs().Word(label));
    if (!scanner.LineEnd()) [[unlikely]] {
        return false;
    }
    if (mode == Mode::Noting) [[unlikely]] {
        NoteField(label, kind, line);
        takenText = {};
    }
    takenLine = line;
    takenStart = cursor;
    cursor = scanner.Cursor();
    ++line;
    ++askCount;
    fieldMend = nullptr;
    return true;
}

// True if the field has a line, which is taken then. Everything but plain lines goes this way.
bool TextReader::FindLine(Label label, FieldKind kind) {
    isHeaderMissing = false;
    fieldMend = nullptr;
    takenLine = kNone;
    if (isProbing) {
        Probe(label, kind);
        return false;
    }
    if (std::exchange(isEntryLabelWanted, false)) {
        lists.back().entryLabel = label;
    }
    bool isAccepted = false;
    bool isMissing = isRestMissing;
    for (; nextAskMend < askMends.size() && askMends[nextAskMend].ask == askCount; ++nextAskMend) {
        const Mend& mend = askMends[nextAskMend];
        using enum Mend::Kind;
        isAccepted = isAccepted || mend.kind == AcceptLine;
        isHeaderMissing = isHeaderMissing || mend.kind == MissingHeader;
        isMissing = isMissing || mend.kind == Missing || mend.kind == MissingRest || isHeaderMissing;
        fieldMend = mend.kind == Choice || mend.kind == Count || mend.kind == OpenCount ? &mend : fieldMend;
        isRestMissing = isRestMissing || mend.kind == MissingRest;
        if (mend.kind == MissingRest) {
            NoteField(label, kind, kNone);
            NoteTruncated();
            ++askCount;
            UpdateStops();
            return false;
        }
    }
    ApplyLineMends();
    if (!isMissing && !isAccepted && !IsKeyAhead(label, kind)) {
        Mismatched(label, kind);
        return false;
    }
    NoteField(label, kind, isMissing ? kNone : line);
    ++askCount;
    UpdateStops();
    if (isMissing) {
        if (!isRestMissing) {
            NoteMissing(isHeaderMissing);
        }
        return false;
    }
    TakeLine(label, kind);
    return true;
}

std::string_view TextReader::LineAhead() const {
    const auto left = static_cast<std::size_t>(text.End() - cursor);
    const void* lineFeed = left == 0 ? nullptr : std::memchr(cursor, '\n', left);
    std::string_view content(
        cursor, lineFeed == nullptr ? left : static_cast<std::size_t>(static_cast<const char*>(lineFeed) - cursor));
    if (content.ends_with('\r')) {
        content.remove_suffix(1);
    }
    return content;
}

bool TextReader::IsKeyAhead(Label label, FieldKind kind) {
    if (cursor == text.End()) {
        return false;
    }
    const std::string_view content = LineAhead();
    if (kind == FieldKind::Row) {
        return Trimmed(content).starts_with('[');
    }
    const std::string_view key = KeyOf(content);
    return key.size() == label.size() && Ascii::EqualsEach(key.data(), label);
}

// Takes the line ahead for a label, which a misspelt key may have in its beginning.
void TextReader::TakeLine(Label label, FieldKind kind) {
    takenLine = line;
    takenStart = cursor;
    takenText = LineAhead();
    const auto indentation = static_cast<std::size_t>(IndentationOf(takenText));
    const std::string_view key = KeyOf(takenText);
    valueBegin = indentation + (kind == FieldKind::Row ? 0 : key.size());
    NoteLine(takenText);
    if (kind != FieldKind::Row && !(key.size() == label.size() && Ascii::EqualsEach(key.data(), label))) {
        if (key.size() > label.size() && Ascii::EqualsEach(key.data(), label)) {
            const char separator = key[label.size()];
            valueBegin = indentation + label.size() + (separator == '=' || separator == ':' ? 1 : 0);
        }
        NoteMisspelt(label, takenText.substr(indentation, valueBegin - indentation));
    }
    if (swapLine == kNone) {
        const auto* lineFeed =
            static_cast<const char*>(std::memchr(cursor, '\n', static_cast<std::size_t>(text.End() - cursor)));
        cursor = lineFeed == nullptr ? text.End() : lineFeed + 1;
        ++line;
    } else if (!isSwapDone) {
        isSwapDone = true;
        GoTo(swapLine);
    } else {
        GoTo(std::exchange(swapLine, kNone) + 2);
    }
    UpdateStops();
}

void TextReader::GoTo(std::int32_t newLine) {
    line = std::min(newLine, text.LineCount());
    cursor = text.LineStart(line);
}

void TextReader::UpdateStops() {
    stopAsk = nextAskMend < askMends.size() ? askMends[nextAskMend].ask : kNone;
    if (swapLine != kNone || isProbing || isRestMissing) {
        stopLine = line;
    } else {
        stopLine = nextLineMend < lineMends.size() ? lineMends[nextLineMend].line : kNone;
    }
}

void TextReader::ApplyLineMends() {
    while (swapLine == kNone && nextLineMend < lineMends.size() && lineMends[nextLineMend].line <= line) {
        const Mend& mend = lineMends[nextLineMend++];
        if (mend.line < line) {
            continue;
        }
        if (mend.kind == Mend::Kind::SkipLines) {
            NoteSkipped(mend.value);
            GoTo(line + mend.value);
        } else {
            NoteSwapped();
            swapLine = line;
            isSwapDone = false;
            GoTo(line + 1);
        }
    }
    UpdateStops();
}

void TextReader::NoteMismatch(Label label) {
    mismatch.ask = askCount;
    mismatch.line = line;
    mismatch.label = label;
    mismatch.lists = lists;
    for (std::size_t i = endedCount - std::min(endedCount, kLatest); i < endedCount; ++i) {
        if (endedLists[i % kLatest].endLine == line) {
            mismatch.endedLists.push_back(endedLists[i % kLatest]);
        }
    }
    for (std::size_t i = choiceCount; i > choiceCount - std::min(choiceCount, kLatest); --i) {
        mismatch.choices.push_back(choices[(i - 1) % kLatest]);
    }
    if (choiceCount > kLatest) {
        mismatch.choices.push_back(firstChoice);
    }
}

void TextReader::Mismatched(Label label, FieldKind kind) {
    NoteMismatch(label);
    if (mode != Mode::Probing) {
        throw Stop();
    }
    isProbing = true;
    UpdateStops();
    if (!label.empty()) {
        Probe(label, kind);
    }
}

void TextReader::Probe(Label label, FieldKind kind) {
    mismatch.probes.push_back({label, kind, depth});
    if (mismatch.probes.size() >= kMostProbes) {
        throw Stop();
    }
}

// False if there is no line. A value that is not in its form is noted.
template <class Scan>
bool TextReader::ReadSlowly(Label label, FieldKind kind, Scan scan) {
    isValueClean = true;
    if (!FindLine(label, kind)) {
        return false;
    }
    const std::string_view content = takenText.substr(0, takenText.find('\0'));
    const std::string_view value = Trimmed(content.substr(std::min(valueBegin, content.size())));
    valueBegin = static_cast<std::size_t>(value.data() - takenText.data());
    ValueScan scanner(value);
    scan(scanner);
    isValueClean = scanner.IsClean();
    if (!isValueClean) {
        NoteValue(scanner.Problem());
    }
    return true;
}

template <std::size_t N>
void TextReader::ReadInts(Label label, FieldKind kind, std::array<std::int32_t, N>& values) {
    const auto plain = [&](PlainScanner& scanner) {
        scanner.Blank().Literal(u'[');
        for (std::int32_t& value : values) {
            scanner.Blank().Int(value).Blank().Literal(&value != &values.back() ? u',' : u']');
        }
    };
    auto start = values;
    if (!TakePlain(label, kind, plain)) {
        ReadSlowly(label, kind, [&](ValueScan& scanner) { scanner.Ints(start); });
        values = start;
    }
}

template <std::size_t N>
void TextReader::ReadFloats(Label label, FieldKind kind, std::array<float, N>& values) {
    const auto plain = [&](PlainScanner& scanner) {
        scanner.Blank().Literal(u'[');
        for (float& value : values) {
            scanner.Blank().Float(value);
        }
        scanner.Blank().Literal(u']');
    };
    auto start = values;
    const bool isPlain = TakePlain(kind == FieldKind::Row ? Label() : label, kind, plain);
    if (!isPlain) {
        ReadSlowly(label, kind, [&](ValueScan& scanner) { scanner.Floats(start); });
        values = start;
    }
}

template <std::size_t N>
void TextReader::ReadRows(Label label, FieldKind kind, float (&rows)[N][N]) {
    ReadGroup(label, kind, [&] {
        for (float(&row)[N] : rows) {
            std::array<float, N> values = std::to_array(row);
            ReadFloats(kRowLabel, FieldKind::Row, values);
            std::ranges::copy(values, row);
        }
    });
}

template <class ReadRecord>
void TextReader::ReadGroup(Label label, FieldKind kind, ReadRecord readRecord) {
    const bool isFound = TakePlain(label, kind, [](PlainScanner&) {}) ||
                         ReadSlowly(label, kind, [](ValueScan& scanner) { scanner.Nothing(); });
    if (!isFound && !isHeaderMissing && !isProbing) {
        return;
    }
    if (mode == Mode::Noting) {
        records.push_back(static_cast<std::int32_t>(asks.size()) - 1);
    }
    ++depth;
    readRecord();
    --depth;
    if (mode == Mode::Noting) {
        records.pop_back();
    }
}

void TextReader::Read(Label label, Color& value) {
    std::uint32_t packed = 0;
    bool isRead = TakePlain(label, FieldKind::Color, [&](PlainScanner& scanner) { scanner.Blank().Hex(packed); });
    if (!isRead) {
        isRead = ReadSlowly(label, FieldKind::Color, [&](ValueScan& scanner) { scanner.Color(packed); });
    }
    if (isRead) {
        value = Color::FromUInt(packed);
    }
}

void TextReader::Read(Label label, Rectangle& value) {
    std::array values = {-1, -1, -1, -1};
    ReadInts(label, FieldKind::Rectangle, values);
    value = Rectangle::FromExtent(values[0], values[1], values[2], values[3]);
}

void TextReader::Read(Label label, Size& value) {
    std::array values = {value.width, value.height};
    ReadInts(label, FieldKind::Size, values);
    value = {values[0], values[1]};
}

void TextReader::Read(Label label, Point& value) {
    std::array values = {value.x, value.y};
    ReadInts(label, FieldKind::Point, values);
    value = {values[0], values[1]};
}

void TextReader::Read(Label label, Quad& value) {
    std::array values = {value.x, value.y, value.z, value.w};
    ReadFloats(label, FieldKind::Quad, values);
    value = {values[0], values[1], values[2], values[3]};
}

void TextReader::Read(Label label, Matrix44& value) {
    ReadRows(label, FieldKind::Matrix44, value.rows);
}

void TextReader::Read(Label label, Matrix33& value) {
    ReadRows(label, FieldKind::Matrix33, value.rows);
}

void TextReader::Read(Label label, Vector3& value) {
    std::array values = {value.x, value.y, value.z};
    ReadFloats(label, FieldKind::Vector3, values);
    value = {values[0], values[1], values[2]};
}

void TextReader::Read(Label label, char16_t* buffer, int bufferSize) {
    nextCapacity = bufferSize;
    isValueClean = true;
    bool isRead =
        TakePlain(label, FieldKind::Text, [&](PlainScanner& scanner) { scanner.Blank().Quoted(buffer, bufferSize); });
    if (!isRead) {
        isRead = ReadSlowly(label, FieldKind::Text, [&](ValueScan& scanner) { scanner.Text(buffer, bufferSize); });
    }
    if (const EnumTable* table = std::exchange(nextTable, nullptr); table != nullptr && mode != Mode::Strict) {
        TakeChoice({buffer, bufferSize}, *table, isRead);
    }
    if (nextName != NameKind::None && isRead && names != nullptr) {
        NoteName(TextIn(buffer, bufferSize));
    }
    nextName = NameKind::None;
}

void TextReader::Read(Label label, std::int64_t& value) {
    ReadSlowly(label, FieldKind::Int64, [&](ValueScan& scanner) { scanner.Int64(value); });
}

void TextReader::Read(Label label, Bool& value) {
    const auto takes = [&](std::u16string_view word) {
        return TakePlain(label, FieldKind::Bool, [&](PlainScanner& scanner) { scanner.Blank().Word(word); });
    };
    if (takes(u"TRUE")) {
        value = true;
    } else if (takes(u"FALSE")) {
        value = false;
    } else {
        const bool isRead = ReadSlowly(label, FieldKind::Bool, [&](ValueScan& scanner) { scanner.Bool(value); });
        isValueClean = isValueClean && isRead;
        if (fieldMend != nullptr && fieldMend->kind == Mend::Kind::Choice) {
            if (isValueClean) {
                NoteChoice(value ? u"TRUE" : u"FALSE", {}, kNone);
            }
            value = fieldMend->value != 0;
        }
        AddChoice(nullptr, value ? 1 : 0, !isValueClean);
        return;
    }
    AddChoice(nullptr, value ? 1 : 0, false);
}

void TextReader::Read(Label label, double& value) {
    ReadSlowly(label, FieldKind::Double, [&](ValueScan& scanner) { scanner.Double(value); });
}

void TextReader::Read(Label label, float& value) {
    float read = value;
    if (TakePlain(label, FieldKind::Float, [&](PlainScanner& scanner) { scanner.Blank().Float(read); })) [[likely]] {
        value = read;
    } else {
        ReadSlowly(label, FieldKind::Float, [&](ValueScan& scanner) { scanner.Float(value); });
    }
    nextIsDegrees = false;
}

void TextReader::Read(Label label, std::int32_t& value) {
    std::int32_t read = value;
    isValueClean = true;
    if (TakePlain(label, FieldKind::Int, [&](PlainScanner& scanner) { scanner.Blank().Int(read); })) [[likely]] {
        value = read;
    } else {
        ReadSlowly(label, FieldKind::Int, [&](ValueScan& scanner) { scanner.Int(value); });
    }
}

void TextReader::Read(Label label, std::uint32_t& value) {
    auto number = static_cast<std::int32_t>(value);
    bool isRead = TakePlain(label, FieldKind::Uint, [&](PlainScanner& scanner) { scanner.Blank().Int(number); });
    isValueClean = true;
    if (!isRead) {
        number = static_cast<std::int32_t>(value);
        isRead = ReadSlowly(label, FieldKind::Uint, [&](ValueScan& scanner) { scanner.Int(number); });
    }
    if (std::exchange(nextIsCount, false)) {
        number = CountOf(number, isRead);
    } else if (!isRead || !isValueClean) {
        // Some numbers decide by being 0 or not.
        if (fieldMend != nullptr && fieldMend->kind == Mend::Kind::Choice) {
            number = fieldMend->value;
        }
        AddChoice(nullptr, number > 0 ? 1 : 0, true);
    }
    value = static_cast<std::uint32_t>(number);
}

void TextReader::Read(Label label, SingleLineArchivable& value) {
    nextName = value.GetNameKind();
    value.Read(label, *this);
    nextName = NameKind::None;
}

void TextReader::Read(Label label, Archivable& value, std::int32_t _version) {
    ReadGroup(label, FieldKind::Record, [&] { value.Read(*this, _version); });
}

void TextReader::Read(Label label, Archivable& value) {
    ReadGroup(label, FieldKind::Record, [&] { value.Read(*this); });
}

void TextReader::OnList(const ListShape& shape) {
    nextIsCount = true;
    nextList = shape;
}

// How many entries a list is said to have, which is never more than there could be.
std::int32_t TextReader::CountOf(std::int32_t given, bool isRead) {
    OpenList list;
    list.ask = askCount - 1;
    list.line = takenLine;
    list.shape = nextList;
    list.depth = depth;
    const bool isOdd = nextList.rule == ListRule::Exact && given != nextList.limit;
    list.isDoubtful = !isRead || !isValueClean || given < 0 || isOdd;
    list.count = list.isDoubtful && !isOdd ? 0 : given;
    std::int32_t count = list.count;
    const Mend::Kind mendKind = fieldMend != nullptr ? fieldMend->kind : Mend::Kind::Missing;
    const auto bytesLeft = static_cast<std::int64_t>(text.End() - cursor);
    const std::int64_t left = mode == Mode::Strict ? bytesLeft : text.LineCount() - line + 1;
    if (mendKind == Mend::Kind::Count) {
        count = fieldMend->value;
    } else if (mendKind == Mend::Kind::OpenCount) {
        list.isOpen = true;
        count = kMostUncounted;
    }
    count = static_cast<std::int32_t>(std::min<std::int64_t>(count, std::max<std::int64_t>(left, 0)));
    if (list.shape.rule == ListRule::Fatal) {
        count = std::min(count, list.shape.limit);
    }
    const bool isOver = list.shape.limit != ListShape::kUnlimited && list.count > list.shape.limit;
    isUnclean = isUnclean || (mode == Mode::Strict && (list.isDoubtful || isOver));
    if (isRead && isValueClean && given < 0) {
        NoteNegativeCount(given);
    }
    lists.push_back(list);
    return isProbing ? 0 : count;
}

bool TextReader::OnEntry(std::int32_t entry) {
    OpenList& list = lists.back();
    if (list.isOpen && !isProbing) {
        ApplyLineMends();
        const bool isCounted = entry < list.count;
        if (!isCounted && !list.entryLabel.empty() && !IsKeyAhead(list.entryLabel, FieldKind::Record)) {
            return false;
        }
        stopLine = line;
        isEntryLabelWanted = entry == 0;
    }
    list.entries = entry + 1;
    list.entryAsk = askCount;
    return true;
}

void TextReader::OnListEnd() {
    OpenList list = lists.back();
    lists.pop_back();
    list.endLine = line;
    list.endAsk = askCount;
    if (mode == Mode::Noting) {
        NoteCount(list);
    }
    endedLists[endedCount++ % kLatest] = list;
}

// A text that is no row becomes the one that a mend names, or the one that is most like it.
void TextReader::TakeChoice(StringBuffer buffer, const EnumTable& table, bool isRead) {
    const std::u16string given(isRead ? TextIn(buffer.m_Buffer, buffer.m_BufferSize) : kInvalidText);
    std::int32_t row = RowOf(given, table);
    const bool isKnown = isRead && (row != kInvalidEnum || given == kInvalidText);
    const bool isMended = fieldMend != nullptr && fieldMend->kind == Mend::Kind::Choice;
    if (isMended) {
        row = fieldMend->value;
    } else if (!isKnown && isRead) {
        const std::size_t nearest = NearestOf(given, {table.rows, static_cast<std::size_t>(table.rowCount)});
        row = nearest == kNoneNear ? kInvalidEnum : static_cast<std::int32_t>(nearest);
    }
    if (isRead && isValueClean && (!isKnown || isMended)) {
        NoteChoice(given, table, row);
    }
    StringBuffer out = buffer;
    Copy(out, TextOfRow(table, row));
    AddChoice(&table, row, !isKnown);
    if (mode == Mode::Noting && !asks.empty()) {
        asks.back().value = row;
    }
}

void TextReader::AddChoice(const EnumTable* table, std::int32_t value, bool isDoubtful) {
    if (mode == Mode::Probing && !isProbing) {
        choices[choiceCount % kLatest] = {askCount - 1, table, value, isDoubtful};
        firstChoice = choiceCount == 0 ? choices[0] : firstChoice;
        ++choiceCount;
    }
}

} // namespace Vorn
