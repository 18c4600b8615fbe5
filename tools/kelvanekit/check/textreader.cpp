#include "tools/kelvanekit/check/textreader.h"

#include "engine/archive/archiveform_impl.h"
#include "engine/archive/archiveheader.h"
#include "engine/archive/archiveversion.h"

#include <algorithm>
#include <utility>

namespace Vorn {

namespace {

constexpr std::size_t kMostProbes = 64;

// Entries that a list of unknown length is given room for.
constexpr std::int32_t kMostUncounted = 65536;

// Where the value begins that a line has behind its label with a sign between, `width = 12`, or with nothing at all; 0
// if it does not.
std::size_t EndOfSign(std::string_view line, Label label) {
    const std::string_view key = KeyOf(line);
    if (key.size() < label.size() || !Ascii::EqualsEach(key.data(), label)) {
        return 0;
    }
    const std::size_t end = static_cast<std::size_t>(key.data() - line.data()) + label.size();
    const std::size_t signBegin = end + static_cast<std::size_t>(IndentationOf(line.substr(end)));
    // Some look like a blank.
    constexpr std::string_view kSigns[] = {"=", ":", "\u00A0", "\u200B", "\u3000"};
    for (const std::string_view sign : kSigns) {
        if (line.substr(signBegin).starts_with(sign)) {
            return signBegin + sign.size();
        }
    }
    const bool isOpened = key.size() > label.size() && (line[end] == '"' || line[end] == '[');
    const bool isAttached = key.size() > label.size() && Trimmed(line).size() == key.size();
    return isOpened || isAttached ? end : 0;
}

Mends MendsOf(const Mends& mends, bool ofLines) {
    Mends result;
    std::ranges::copy_if(mends, std::back_inserter(result),
                         [&](const Mend& mend) { return mend.IsOfLines() == ofLines; });
    return result;
}

} // namespace

TextReader::TextReader(const SourceText& _text, const TextHeader& _header, Mode _mode, const KnownNames* _names,
                       const Mends& mends)
    : FieldReaderForm(_mode, _names), text(_text), header(_header), askMends(MendsOf(mends, false)),
      cursor(_text, MendsOf(mends, true)) {
    std::ranges::stable_sort(askMends, {}, &Mend::ask);
    for (std::int32_t line = 0; line < header.firstLine && !cursor.IsAtEnd(); ++line) {
        cursor.Pass();
    }
    hasVersion = header.hasVersion;
    UpdateStops();
}

std::string_view TextReader::ValueOf(const AskedField& field) const {
    const std::string_view content = text.Line(field.line);
    if (field.kind == FieldKind::Row) {
        return Trimmed(content);
    }
    const std::string_view key = KeyOf(content);
    return Trimmed(content.substr(static_cast<std::size_t>(key.data() - content.data()) + key.size()));
}

FindingPlace TextReader::PlaceOf(const AskedField& field) const {
    if (field.line == kNone) {
        return {std::min(cursor.Line(), text.LineCount()) + 1};
    }
    const std::string_view value = ValueOf(field);
    const auto begin = static_cast<std::int32_t>(value.data() - text.Line(field.line).data());
    return {field.line + 1, begin, begin + static_cast<std::int32_t>(value.size())};
}

void TextReader::ReadAll(LoadedContent& content) {
    ReadVersion();
    content.Read(*this);
    if (isProbing) {
        isUnclean = true;
        return;
    }
    isAtEnd = true;
    FollowLineMends();
    // Blank lines at the end do no harm.
    if (!Trimmed({cursor.Place(), static_cast<std::size_t>(text.End() - cursor.Place())}).empty()) {
        Mismatched({}, FieldKind::Record);
        isUnclean = true;
    }
}

void TextReader::ReadVersion() {
    std::int32_t fileVersion = header.isOld ? kNoVersion : kArchiveVersion;
    if (header.hasVersion) {
        Read(kVersionLabel, fileVersion);
        fileVersion = isValueClean ? fileVersion : kArchiveVersion;
    }
    SetVersion(fileVersion);
    if (header.isSwapped) {
        cursor.GoTo(2);
    }
}

// Takes a line whole if it has the label and behind it what `scan` takes, all in the written form.
template <class Scan>
VORN_ALWAYS_INLINE bool TextReader::TakePlain(Label label, FieldKind kind, Scan scan) {
    if (askCount == stopAsk || !cursor.IsPlain()) [[unlikely]] {
        return false;
    }
    PlainScanner scanner(cursor.Place());
    scan(scanner.Tabs().Word(kind == FieldKind::Row ? Label() : label));
    if (!scanner.LineEnd()) [[unlikely]] {
        return false;
    }
    NoteAsked(label, kind, cursor.Line());
    takenLine = cursor.Line();
    cursor.PassTo(scanner.Cursor());
    ++askCount;
    fieldMend = nullptr;
    isValueClean = true;
    return true;
}

// True if the field has a line, which is taken then. Everything but plain lines goes this way.
bool TextReader::FindLine(Label label, FieldKind kind) {
    takenLine = kNone;
    fieldMend = nullptr;
    isHeaderMissing = false;
    if (isProbing) {
        Probe(label, kind);
        return false;
    }
    if (std::exchange(isEntryLabelWanted, false)) {
        lists.back().entryLabel = label;
    }
    bool isAccepted = false;
    const bool isTruncated = !isRestMissing;
    const bool isMissing = FollowAskMends(isAccepted);
    if (isRestMissing && isTruncated) {
        NoteAsked(label, kind, kNone);
        NoteTruncated();
        ++askCount;
        UpdateStops();
        return false;
    }
    FollowLineMends();
    if (!isMissing && !isAccepted && !IsKeyAhead(label, kind)) {
        Mismatched(label, kind);
        return false;
    }
    NoteAsked(label, kind, isMissing ? kNone : cursor.Line());
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

// Whether the field has no line.
bool TextReader::FollowAskMends(bool& isAccepted) {
    bool isMissing = isRestMissing;
    for (; nextAskMend < askMends.size() && askMends[nextAskMend].ask == askCount; ++nextAskMend) {
        const Mend& mend = askMends[nextAskMend];
        using enum Mend::Kind;
        isAccepted = isAccepted || mend.kind == AcceptLine;
        isHeaderMissing = isHeaderMissing || mend.kind == MissingHeader;
        isRestMissing = isRestMissing || mend.kind == MissingRest;
        isMissing = isMissing || mend.kind == Missing || isHeaderMissing || isRestMissing;
        fieldMend = mend.kind == Choice || mend.kind == Count || mend.kind == OpenCount ? &mend : fieldMend;
    }
    if (isRestMissing) {
        cursor.StopForGood();
    }
    return isMissing;
}

bool TextReader::IsKeyAhead(Label label, FieldKind kind) {
    if (cursor.IsAtEnd()) {
        return false;
    }
    const std::string_view content = cursor.Ahead();
    return kind == FieldKind::Row ? Trimmed(content).starts_with('[') : IsLabel(KeyOf(content), label);
}

// Takes the line ahead for a label, which a misspelt key may have in its beginning.
void TextReader::TakeLine(Label label, FieldKind kind) {
    takenLine = cursor.Line();
    takenText = cursor.Ahead();
    const auto indentation = static_cast<std::size_t>(IndentationOf(takenText));
    const std::string_view key = KeyOf(takenText);
    valueBegin = indentation + (kind == FieldKind::Row ? 0 : key.size());
    isLineSound = NoteLine(takenText);
    const bool isGroup = kind == FieldKind::Record || kind == FieldKind::Matrix33 || kind == FieldKind::Matrix44;
    const std::size_t signEnd = kind == FieldKind::Row || isGroup ? 0 : EndOfSign(takenText, label);
    if (kind != FieldKind::Row && (signEnd > 0 || !IsLabel(key, label))) {
        valueBegin = signEnd > 0 ? signEnd : valueBegin;
        NoteMisspelt(label, takenText.substr(indentation, valueBegin - indentation), signEnd > 0);
    }
    cursor.Pass();
}

void TextReader::FollowLineMends() {
    cursor.FollowMends([this](const Mend& mend) {
        if (mend.kind == Mend::Kind::SkipLines) {
            NoteSkipped(mend.value);
        } else {
            NoteSwapped();
        }
    });
}

void TextReader::UpdateStops() {
    stopAsk = nextAskMend < askMends.size() ? askMends[nextAskMend].ask : kNone;
}

void TextReader::NoteMismatch(Label label) {
    mismatch.ask = askCount;
    mismatch.line = cursor.Line();
    mismatch.label = label;
    mismatch.lists = lists;
    for (std::size_t i = endedCount - std::min(endedCount, kLatest); i < endedCount; ++i) {
        if (endedLists[i % kLatest].endLine == mismatch.line) {
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

void TextReader::AtAbnormalEnd() {
    if (!isProbing) {
        mismatch.isAbnormalEnd = true;
        NoteMismatch({});
    }
}

void TextReader::Mismatched(Label label, FieldKind kind) {
    NoteMismatch(label);
    if (mode != Mode::Probing) {
        throw Stop();
    }
    isProbing = true;
    cursor.StopForGood();
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
    isValueClean = scanner.IsClean() && isLineSound;
    if (!scanner.IsClean() && isLineSound) {
        NoteValue(scanner.Problem());
    }
    return true;
}

// Numbers in brackets, with commas between whole ones.
template <class Word, std::size_t N>
void TextReader::ReadWords(Label label, FieldKind kind, std::array<Word, N>& words) {
    constexpr bool kIsWhole = std::is_same_v<Word, std::int32_t>;
    auto read = words;
    const auto plain = [&](PlainScanner& scanner) {
        scanner.Blank().Literal(u'[');
        for (Word& word : read) {
            if constexpr (kIsWhole) {
                scanner.Blank().Int(word).Blank().Literal(&word != &read.back() ? u',' : u']');
            } else {
                scanner.Blank().Float(word);
            }
        }
        if constexpr (!kIsWhole) {
            scanner.Blank().Literal(u']');
        }
    };
    if (TakePlain(label, kind, plain)) {
        words = read;
        return;
    }
    ReadSlowly(label, kind, [&](ValueScan& scanner) {
        if constexpr (kIsWhole) {
            scanner.Ints(words);
        } else {
            scanner.Floats(words);
        }
    });
}

bool TextReader::BeginGroup(Label label, FieldKind kind) {
    return TakePlain(label, kind, [](PlainScanner&) {}) ||
           ReadSlowly(label, kind, [](ValueScan& scanner) { scanner.Nothing(); }) || isHeaderMissing || isProbing;
}

// A vector or a pair.
template <WordValue Value>
void TextReader::ReadOne(Label label, Value& value) {
    auto words = ToWords(value);
    ReadWords(label, kKindOf<Value>, words);
    value = FromWords<Value>(words);
}

void TextReader::ReadOne(Label label, Rectangle& value) {
    std::array extent = {-1, -1, -1, -1};
    ReadWords(label, FieldKind::Rectangle, extent);
    value = Rectangle::FromExtent(extent[0], extent[1], extent[2], extent[3]);
}

void TextReader::ReadOne(Label label, Color& value) {
    std::uint32_t packed = 0;
    if (TakePlain(label, FieldKind::Color, [&](PlainScanner& scanner) { scanner.Blank().Hex(packed); }) ||
        ReadSlowly(label, FieldKind::Color, [&](ValueScan& scanner) { scanner.Color(packed); })) {
        value = Color::FromUInt(packed);
    }
}

void TextReader::ReadOne(Label label, std::int64_t& value) {
    ReadSlowly(label, FieldKind::Int64, [&](ValueScan& scanner) { scanner.Int64(value); });
}

void TextReader::ReadOne(Label label, double& value) {
    ReadSlowly(label, FieldKind::Double, [&](ValueScan& scanner) { scanner.Double(value); });
}

void TextReader::ReadOne(Label label, float& value) {
    float read = value;
    if (TakePlain(label, FieldKind::Float, [&](PlainScanner& scanner) { scanner.Blank().Float(read); })) [[likely]] {
        value = read;
    } else {
        ReadSlowly(label, FieldKind::Float, [&](ValueScan& scanner) { scanner.Float(value); });
    }
    nextIsDegrees = false;
}

void TextReader::ReadOne(Label label, std::int32_t& value) {
    std::int32_t read = value;
    if (TakePlain(label, FieldKind::Int, [&](PlainScanner& scanner) { scanner.Blank().Int(read); })) [[likely]] {
        value = read;
    } else {
        ReadSlowly(label, FieldKind::Int, [&](ValueScan& scanner) { scanner.Int(value); });
    }
}

void TextReader::ReadOne(Label label, std::uint32_t& value) {
    std::int32_t number = 0;
    bool isRead = TakePlain(label, FieldKind::Uint, [&](PlainScanner& scanner) { scanner.Blank().Int(number); });
    if (!isRead) {
        number = static_cast<std::int32_t>(value);
        isRead = ReadSlowly(label, FieldKind::Uint, [&](ValueScan& scanner) { scanner.Int(number); });
    }
    if (std::exchange(nextIsCount, false)) {
        number = CountOf(number, isRead);
    } else if (!isRead || !isValueClean) {
        // Some numbers decide by being 0 or not.
        number = IsChosen() ? fieldMend->value : number;
        AddChoice(nullptr, number > 0 ? 1 : 0, true);
    }
    value = static_cast<std::uint32_t>(number);
}

void TextReader::ReadOne(Label label, Bool& value) {
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
        if (IsChosen()) {
            if (isValueClean) {
                NoteTruth(value);
            }
            value = fieldMend->value != 0;
        }
    }
    AddChoice(nullptr, value ? 1 : 0, !isValueClean);
}

void TextReader::Read(Label label, char16_t* buffer, int bufferSize) {
    nextCapacity = bufferSize;
    bool isRead =
        TakePlain(label, FieldKind::Text, [&](PlainScanner& scanner) { scanner.Blank().Quoted(buffer, bufferSize); });
    if (!isRead) {
        isRead = ReadSlowly(label, FieldKind::Text, [&](ValueScan& scanner) { scanner.Text(buffer, bufferSize); });
    }
    if (nextTable != nullptr && mode != Mode::Strict) {
        const Choice choice = TakeChoice({buffer, bufferSize}, isRead, fieldMend);
        AddChoice(choice.table, choice.row, !choice.isKnown);
    }
    nextTable = nullptr;
    if (isRead && nextName != NameKind::None && names != nullptr) {
        NoteName(TextIn(buffer, bufferSize));
    }
    nextName = NameKind::None;
    KeepText({buffer, bufferSize});
}

// How many entries a list is said to have, which is never more than there could be.
std::int32_t TextReader::CountOf(std::int32_t given, bool isRead) {
    OpenList list;
    list.ask = askCount - 1;
    list.shape = nextList;
    list.depth = depth;
    list.firstLine = cursor.Line();
    const bool isOdd = nextList.rule == ListRule::Exact && given != nextList.limit;
    list.isDoubtful = !isRead || !isValueClean || given < 0 || isOdd;
    list.count = list.isDoubtful && !isOdd ? 0 : given;
    std::int32_t count = list.count;
    const Mend::Kind mendKind = fieldMend != nullptr ? fieldMend->kind : Mend::Kind::Missing;
    const auto bytesLeft = static_cast<std::int64_t>(text.End() - cursor.Place());
    const std::int64_t left = mode == Mode::Strict ? bytesLeft : text.LineCount() - cursor.Line() + 1;
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
    if (list.isDoubtful || isOver) {
        Spoil();
    }
    if (isRead && isValueClean && given < 0) {
        NoteNegativeCount(given);
    }
    lists.push_back(list);
    return isProbing ? 0 : count;
}

bool TextReader::OnEntry(std::int32_t entry) {
    OpenList& list = lists.back();
    if (list.isOpen && !isProbing) {
        FollowLineMends();
        const bool isCounted = entry < list.count;
        if (!isCounted && !list.entryLabel.empty() && !IsKeyAhead(list.entryLabel, FieldKind::Record)) {
            return false;
        }
        cursor.StopHere();
        isEntryLabelWanted = entry == 0;
    }
    list.entryAsk = askCount;
    return FieldReader::OnEntry(entry);
}

void TextReader::OnListEnd() {
    OpenList list = lists.back();
    list.endLine = cursor.Line();
    list.endAsk = askCount;
    FieldReader::OnListEnd();
    if (IsNoting()) {
        NoteCount(list);
    }
    endedLists[endedCount++ % kLatest] = list;
}

void TextReader::AddChoice(const EnumTable* table, std::int32_t value, bool isDoubtful) {
    if (mode == Mode::Probing && !isProbing) {
        choices[choiceCount % kLatest] = {askCount - 1, table, value, isDoubtful};
        firstChoice = choiceCount == 0 ? choices[0] : firstChoice;
        ++choiceCount;
    }
}

} // namespace Vorn
