#include "tools/kelvanekit/check/fieldreader.h"

#include "gs/entity/entitytypes.h"
#include "tools/kelvanekit/check/readscope.h"
#include "tools/kelvanekit/check/sourcetext.h"
#include "tools/kelvanekit/findings/findingcodes.h"
#include "tools/kelvanekit/findings/nearest.h"

#include <algorithm>

namespace Vorn {

namespace {

constexpr std::u16string_view kInvalidText = u"Invalid";
constexpr std::size_t kMostListedTexts = 12;

std::span<const std::u16string_view> RowsOf(const EnumTable& table) {
    return {table.rows, static_cast<std::size_t>(table.rowCount)};
}

std::int32_t RowOf(std::u16string_view text, const EnumTable& table) {
    const auto rows = RowsOf(table);
    const auto row = std::ranges::find(rows, text);
    return row == rows.end() ? kInvalidEnum : static_cast<std::int32_t>(row - rows.begin());
}

std::string AllowedTexts(const EnumTable& table) {
    std::string texts = "the texts are ";
    const auto count = static_cast<std::size_t>(table.rowCount);
    for (std::size_t i = 0; i < std::min(count, kMostListedTexts); ++i) {
        texts += (i == 0 ? "" : ", ") + Quoted(table.rows[i]);
    }
    return count > kMostListedTexts ? texts + " and " + std::to_string(count - kMostListedTexts) + " more" : texts;
}

// The classes of a set: "`Buff`", or "`Frigate` or `Titan`".
std::string ClassTexts(std::uint64_t classes) {
    std::string texts;
    for (const std::u16string_view row : RowsOf(kEntityTypeTable)) {
        texts += (classes & 1) == 0 ? "" : (texts.empty() ? "" : " or ") + Quoted(row);
        classes >>= 1;
    }
    return texts;
}

bool IsSmall(char16_t unit) {
    return unit >= u'a' && unit <= u'z';
}

// Where a key has one of the words "Min" and "Max" as such, also in small letters at its start.
std::size_t FindBoundWord(Label label) {
    for (std::size_t i = 0; i + 3 <= label.size(); ++i) {
        const bool isWord = label[i] == u'M' || (i == 0 && label[i] == u'm');
        if (isWord &&
            ((label[i + 1] == u'i' && label[i + 2] == u'n') || (label[i + 1] == u'a' && label[i + 2] == u'x')) &&
            (i + 3 == label.size() || !IsSmall(label[i + 3]))) {
            return i;
        }
    }
    return Label::npos;
}

void Suggest(Finding& finding, std::u16string_view text) {
    finding.help = "did you mean " + Quoted(text) + "?";
    finding.replacement = '"' + ToUtf8(text) + '"';
    finding.hasReplacement = true;
}

} // namespace

bool FieldReader::Read(LoadedContent& content) {
    const CatchableEnd catchableEnd;
    const HandlerScope scope(this);
    try {
        ReadAll(content);
    } catch (const Stop&) {
        isUnclean = true;
    } catch (const AbnormalEnd&) {
        isUnclean = true;
        endsAbnormally = true;
        AtAbnormalEnd();
    }
    return !isUnclean;
}

void FieldReader::Handle(const char*, int, std::u16string_view report, bool isFailure) {
    Spoil();
    if (IsNoting() && isFailure && !IsListFlawed()) {
        failedChecks.push_back({std::string(Trimmed(ToUtf8(report))), LastAsk()});
    }
}

// Whether checks come from a list that findings of its own tell of.
bool FieldReader::IsListFlawed() const {
    if (lists.empty()) {
        return false;
    }
    const OpenList& list = lists.back();
    return list.shape.rule == ListRule::Keyed || list.shape.rule == ListRule::Exact ||
           !list.shape.HasRoomFor(std::max(list.count, list.entries));
}

bool FieldReader::OnEntry(std::int32_t entry) {
    lists.back().entries = entry + 1;
    return true;
}

void FieldReader::KeepText(StringBuffer text) {
    if (kept != nullptr) {
        asks.back().kept = kept->KeepText(TextIn(text.m_Buffer, text.m_BufferSize));
    }
}

void FieldReader::NoteField(Label label, FieldKind kind, std::int32_t line, std::int64_t offset) {
    AskedField field;
    field.label = label;
    field.kind = kind;
    field.table = kind == FieldKind::Text ? nextTable : nullptr;
    field.name = nextName;
    field.classes = nextClasses;
    field.isDegrees = nextIsDegrees;
    field.isCount = nextIsCount;
    field.rule = nextList.rule;
    field.capacity = nextIsCount ? nextList.limit : nextCapacity;
    field.line = line;
    field.offset = offset;
    field.parent = ParentAsk();
    field.depth = depth;
    if (kind == FieldKind::Row) {
        field.entry = asks.back().kind == FieldKind::Row ? asks.back().entry + 1 : 0;
    } else if (!lists.empty() && lists.back().depth == depth) {
        field.list = lists.back().ask;
        field.entry = lists.back().entries - 1;
    }
    asks.push_back(field);
}

Finding& FieldReader::Add(const FindingCode* code, std::int32_t ask, std::string message) {
    Finding& finding = findings.size() < mostFindings ? findings.emplace_back() : (surplus = {});
    finding.place = PlaceOf(asks[static_cast<std::size_t>(ask)]);
    finding.code = code;
    finding.key = PathOf(asks, ask);
    finding.message = std::move(message);
    return finding;
}

void FieldReader::FollowBound(Label label, double value) {
    const std::size_t place = FindBoundWord(label);
    if (place == Label::npos || nextIsCount) {
        return;
    }
    const std::int32_t entry = lists.empty() ? kNone : lists.back().entries;
    const Bound bound = {label, place, label[place + 1] == u'i', value, group, entry, LastAsk()};
    for (const Bound& other : bounds) {
        const bool isPair = other.isMinimum != bound.isMinimum && other.group == group && other.entry == entry &&
                            other.place == place && other.label.size() == label.size() &&
                            other.label.substr(0, place) == label.substr(0, place) &&
                            other.label.substr(place + 3) == label.substr(place + 3);
        const Bound& minimum = bound.isMinimum ? bound : other;
        const Bound& maximum = bound.isMinimum ? other : bound;
        // A negative maximum stands for none.
        if (isPair && minimum.value > maximum.value && maximum.value >= 0.0) {
            Spoil();
            crossedBounds.push_back({minimum.ask, maximum.ask});
        }
    }
    bounds[boundCount++ % bounds.size()] = bound;
}

// A text that is no row becomes the one that a mend names, or the one that is most like it.
FieldReader::Choice FieldReader::TakeChoice(StringBuffer buffer, bool isRead, const Mend* mend) {
    const EnumTable& table = *std::exchange(nextTable, nullptr);
    const std::u16string given(isRead ? TextIn(buffer.m_Buffer, buffer.m_BufferSize) : kInvalidText);
    std::int32_t row = RowOf(given, table);
    const bool isKnown = isRead && (row != kInvalidEnum || given == kInvalidText);
    const bool isMended = mend != nullptr && mend->kind == Mend::Kind::Choice;
    if (isMended) {
        row = mend->value;
    } else if (!isKnown && isRead) {
        const std::size_t nearest = NearestOf(given, RowsOf(table));
        row = nearest == kNoneNear ? kInvalidEnum : static_cast<std::int32_t>(nearest);
    }
    if (isRead && isValueClean && (!isKnown || isMended)) {
        NoteChoice(given, table, row);
    }
    StringBuffer out = buffer;
    Copy(out, row >= 0 && row < table.rowCount ? table.rows[row] : kInvalidText);
    if (IsNoting()) {
        asks.back().value = row;
    }
    return {&table, row, isKnown};
}

// A text that is no row, or one that the keys behind it do not belong to.
void FieldReader::NoteChoice(std::u16string_view given, const EnumTable& table, std::int32_t row) {
    if (!IsNoting()) {
        return;
    }
    const bool isKnown = given == kInvalidText || RowOf(given, table) != kInvalidEnum;
    const bool isType = table.rows == kEntityTypeTable.rows;
    const std::u16string_view meant = row == kInvalidEnum ? std::u16string_view() : table.rows[row];
    const FindingCode* code = isType ? Code("wrong-type") : Code("wrong-choice");
    std::string message = "the keys that follow are not those of " + Quoted(given);
    if (!isKnown) {
        code = Lowered(ToUtf8(given)) == Lowered(ToUtf8(meant)) ? Code("wrong-case-text") : Code("unknown-text");
        message = Quoted(given) + " is no text of this key: it becomes `Invalid`";
    }
    Finding& finding = Add(code, LastAsk(), std::move(message));
    if (meant.empty()) {
        finding.help = AllowedTexts(table);
    } else {
        Suggest(finding, meant);
    }
}

void FieldReader::NoteCount(const OpenList& list) {
    asks[static_cast<std::size_t>(list.ask)].value = list.entries;
    if (asks[static_cast<std::size_t>(list.ask)].IsMissing()) {
        return;
    }
    const std::int32_t limit = list.shape.limit;
    const std::int32_t most = std::max(list.entries, list.count);
    const bool isValueCounted = !list.isDoubtful || list.count != 0;
    if (!list.shape.HasRoomFor(most) && list.shape.rule != ListRule::Keyed) {
        Add(Code("list-too-long"), list.ask,
            "the list has " + std::to_string(most) + " entries, and there is room for " + std::to_string(limit) +
                (list.shape.rule == ListRule::Fatal ? ": a conversion ends abnormally" : ": the others are lost"));
    } else if (list.shape.rule == ListRule::Exact && list.count != limit && isValueCounted) {
        Add(Code("count-mismatch"), list.ask, "the list always has " + std::to_string(limit) + " entries").help =
            "write " + std::to_string(limit);
    } else if (!list.isDoubtful && list.entries != list.count) {
        const std::string entries = std::to_string(list.entries);
        Finding& finding = Add(Code("count-mismatch"), list.ask,
                               "the count is " + std::to_string(list.count) + ", but " + entries +
                                   (list.entries == 1 ? " entry follows" : " entries follow"));
        finding.help = "write " + entries;
        finding.replacement = entries;
        finding.hasReplacement = true;
    }
}

void FieldReader::NoteNegativeCount(std::int32_t count) {
    if (IsNoting()) {
        Add(Code("number-out-of-range"), LastAsk(), std::to_string(count) + " is no count: the list becomes empty");
    }
}

void FieldReader::NoteName(std::u16string_view name) {
    const NameKind kind = std::exchange(nextName, NameKind::None);
    if (kind == NameKind::None || names == nullptr || name.empty() || name == kInvalidText) {
        return;
    }
    const bool isKnown = names->Has(kind, name);
    const std::uint64_t classes = nextClasses == 0 ? KnownNames::kAnyClass : nextClasses;
    if (isKnown && (names->ClassesOf(kind, name) & classes) != 0) {
        return;
    }
    Spoil();
    if (!IsNoting()) {
        return;
    }
    Finding& finding =
        isKnown ? Add(Code("wrong-class"), LastAsk(),
                      Quoted(name) + " is a definition of the class " + ClassTexts(names->ClassesOf(kind, name)) +
                          ", and the key wants " + ClassTexts(classes))
                : Add(Code("unresolved-name"), LastAsk(),
                      "there is no " + std::string(KnownNames::WhatIs(kind)) + ' ' + Quoted(name));
    if (const std::u16string_view nearest = names->NearestTo(kind, name, classes); !nearest.empty()) {
        Suggest(finding, nearest);
    }
}

} // namespace Vorn
