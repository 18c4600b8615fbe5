#include "tools/kelvanekit/check/knownnames.h"
#include "tools/kelvanekit/check/textreader.h"

#include "engine/string/utf8.h"
#include "gs/entity/entitytypes.h"
#include "tools/kelvanekit/findings/findingcodes.h"

#include <algorithm>

// What TextReader notes of a file: its fields and what is wrong with them.

namespace Vorn {

namespace {

// Units of a line, its end counted as one.
constexpr std::size_t kMostLineUnits = 1023;

constexpr std::size_t kMostListedTexts = 12;

std::string Quoted(std::string_view text) {
    return '`' + std::string(text) + '`';
}

std::string Quoted(std::u16string_view text) {
    return Quoted(ToUtf8(text));
}

bool EqualsButCase(std::u16string_view left, std::u16string_view right) {
    const auto lower = [](char16_t unit) { return unit >= u'A' && unit <= u'Z' ? unit + 32 : unit; };
    return std::ranges::equal(left, right, {}, lower, lower);
}

std::string AllowedTexts(const EnumTable& table) {
    std::string texts = "the texts are ";
    const auto count = static_cast<std::size_t>(table.rowCount);
    for (std::size_t i = 0; i < std::min(count, kMostListedTexts); ++i) {
        texts += (i == 0 ? "" : ", ") + Quoted(table.rows[i]);
    }
    return count > kMostListedTexts ? texts + " and " + std::to_string(count - kMostListedTexts) + " more" : texts;
}

// Where UTF-8 is malformed; the size if it is not.
std::size_t FindMalformed(std::string_view content) {
    const auto* bytes = reinterpret_cast<const unsigned char*>(content.data());
    std::size_t i = 0;
    while (i < content.size()) {
        const DecodedPoint decoded = DecodeUtf8(bytes + i, content.size() - i);
        if (!decoded.wellFormed) {
            break;
        }
        i += static_cast<std::size_t>(decoded.length);
    }
    return i;
}

TextRange Whole(std::string_view content) {
    return {IndentationOf(content), static_cast<std::int32_t>(content.size())};
}

} // namespace

void TextReader::Handle(const char*, int, std::u16string_view report, bool isFailure) {
    isUnclean = isUnclean || mode == Mode::Strict;
    if (mode == Mode::Noting && isFailure && !IsListFlawed()) {
        failedChecks.push_back({std::string(Trimmed(ToUtf8(report))), static_cast<std::int32_t>(asks.size()) - 1});
    }
}

// Whether checks come from a list that findings of its own tell of.
bool TextReader::IsListFlawed() const {
    if (lists.empty()) {
        return false;
    }
    const OpenList& list = lists.back();
    return list.shape.rule == ListRule::Keyed || list.shape.rule == ListRule::Exact ||
           (list.shape.limit != ListShape::kUnlimited && std::max(list.count, list.entries) > list.shape.limit);
}

void TextReader::NoteField(Label label, FieldKind kind, std::int32_t fieldLine) {
    if (mode != Mode::Noting) {
        return;
    }
    AskedField field;
    field.label = kind == FieldKind::Row ? kRowLabel : label;
    field.kind = kind;
    field.table = kind == FieldKind::Text ? nextTable : nullptr;
    field.name = nextName;
    field.isDegrees = nextIsDegrees;
    field.isCount = nextIsCount;
    field.rule = nextList.rule;
    field.capacity = nextIsCount ? nextList.limit : nextCapacity;
    field.line = fieldLine;
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

Finding& TextReader::Add(const FindingCode* code, std::int32_t atLine, TextRange range, std::string key,
                         std::string message) {
    Finding& finding = findings.emplace_back();
    finding.place = {std::min(atLine, text.LineCount()) + 1, range.begin, range.end};
    finding.code = code;
    finding.key = std::move(key);
    finding.message = std::move(message);
    return finding;
}

// The value of the line that was taken last.
TextRange TextReader::ValueRange() const {
    const std::string_view content = text.Line(takenLine);
    const std::string_view key = KeyOf(content);
    const std::string_view value =
        Trimmed(content.substr(static_cast<std::size_t>(key.data() - content.data()) + key.size()));
    const auto begin = static_cast<std::int32_t>(value.data() - content.data());
    return {begin, begin + static_cast<std::int32_t>(value.size())};
}

void TextReader::NoteValue(ValueProblem& problem) {
    isUnclean = isUnclean || mode == Mode::Strict;
    if (mode != Mode::Noting) {
        return;
    }
    const auto begin = static_cast<std::int32_t>(valueBegin);
    Finding& finding = Add(problem.code, takenLine, {begin + problem.range.begin, begin + problem.range.end},
                           CurrentPath(), std::move(problem.message));
    finding.help = std::move(problem.help);
    finding.replacement = std::move(problem.replacement);
    finding.hasReplacement = problem.hasReplacement;
}

void TextReader::NoteLine(std::string_view content) {
    if (mode == Mode::Probing) {
        return;
    }
    const FindingCode* code = nullptr;
    std::size_t place = content.find('\0');
    std::string message = "the unit 0 ends the line: what follows it is lost";
    if (place != std::string_view::npos) {
        code = Code("zero-inside");
    } else if (place = FindMalformed(content); place < content.size()) {
        code = Code("malformed-encoding");
        message = "bytes that are no UTF-8 become U+FFFD";
    } else if (content.size() >= kMostLineUnits && ToUnits(content).size() >= kMostLineUnits) {
        code = Code("line-too-long");
        place = kMostLineUnits;
        message = "the line has " + std::to_string(ToUnits(content).size()) + " units: what is behind unit " +
                  std::to_string(kMostLineUnits - 1) + " counts as another line";
    }
    isUnclean = isUnclean || (code != nullptr && mode == Mode::Strict);
    if (code != nullptr && mode == Mode::Noting) {
        Add(code, takenLine, {static_cast<std::int32_t>(place), static_cast<std::int32_t>(content.size())},
            CurrentPath(), std::move(message));
    }
}

void TextReader::NoteMissing(bool isHeader) {
    if (mode != Mode::Noting) {
        return;
    }
    const AskedField& field = asks.back();
    const std::string name = field.kind == FieldKind::Row ? "a row" : Quoted(field.label);
    const bool isGroup = field.kind == FieldKind::Record;
    Finding& finding = Add(isGroup ? Code("missing-section") : Code("missing-key"), line, {}, CurrentPath(),
                           name + " is missing" +
                               (isHeader  ? ", though the keys of its group are there"
                                : isGroup ? ", and with it its group of keys"
                                          : ""));
    finding.help = line < text.LineCount() ? "it belongs in front of this line" : "it belongs at the end of the file";
}

void TextReader::NoteTruncated() {
    if (mode == Mode::Noting) {
        Add(Code("truncated"), line, {}, CurrentPath(),
            "the file ends here, where " + Quoted(asks.back().label) + " and more should follow");
    }
}

void TextReader::NoteSkipped(std::int32_t count) {
    const OpenList* ended = endedCount > 0 ? &endedLists[(endedCount - 1) % kLatest] : nullptr;
    const bool isSurplus = ended != nullptr && ended->endAsk == askCount && ended->shape.rule == ListRule::Fatal &&
                           ended->count > ended->shape.limit;
    if (mode != Mode::Noting || isSurplus) {
        return;
    }
    const std::string_view content = text.Line(line);
    const std::string_view key = KeyOf(content);
    const std::string path = PathBelow(asks, isAtEnd ? kNone : ParentAsk(), key);
    if (isAtEnd) {
        Add(Code("trailing-content"), line, Whole(content), path, "content behind the last key is left out");
    } else if (key.empty()) {
        Add(Code("unexpected-line"), line, {}, {}, "an empty line stands in the way of all keys behind it").help =
            "take the line out";
    } else if (count > 1) {
        Add(Code("unexpected-section"), line, Whole(content), path,
            "no key asks for these " + std::to_string(count) + " lines");
    } else if (line > 0 && KeyOf(text.Line(line - 1)) == key) {
        Add(Code("doubled-line"), line, Whole(content), path, Quoted(key) + " stands twice").help =
            "take one of the two lines out";
    } else {
        Add(Code("unexpected-line"), line, Whole(content), path, "no key " + Quoted(key) + " is asked for here").help =
            "take the line out, or move it to its place";
    }
}

void TextReader::NoteSwapped() {
    if (mode == Mode::Noting) {
        const std::string_view content = text.Line(line);
        const std::string_view next = KeyOf(text.Line(line + 1));
        Add(Code("swapped-lines"), line, Whole(content), PathBelow(asks, ParentAsk(), KeyOf(content)),
            Quoted(KeyOf(content)) + " stands in front of " + Quoted(next) + ", and should follow it");
    }
}

void TextReader::NoteMisspelt(Label label, std::string_view key) {
    if (mode != Mode::Noting) {
        return;
    }
    const auto begin = static_cast<std::int32_t>(key.data() - takenText.data());
    Finding& finding = Add(Code("misspelt-key"), takenLine, {begin, begin + static_cast<std::int32_t>(key.size())},
                           CurrentPath(), Quoted(key) + " stands where the key " + Quoted(label) + " belongs");
    finding.help = "did you mean " + Quoted(label) + "?";
    finding.replacement = ToUtf8(label);
    finding.hasReplacement = true;
}

// A text that is no row, or one that the keys behind it do not belong to.
void TextReader::NoteChoice(std::u16string_view given, const EnumTable& table, std::int32_t row) {
    if (mode != Mode::Noting) {
        return;
    }
    const bool isTruth = table.rows == nullptr;
    const auto* end = table.rows + table.rowCount;
    const bool isKnown = isTruth || given == u"Invalid" || std::find(table.rows, end, given) != end;
    const bool isType = table.rows == kEntityTypeTable.rows;
    const std::u16string_view meant = isTruth               ? (given == u"TRUE" ? u"FALSE" : u"TRUE")
                                      : row == kInvalidEnum ? std::u16string_view()
                                                            : table.rows[row];
    const FindingCode* code = isType ? Code("wrong-type") : Code("wrong-choice");
    std::string message = "the keys that follow are not those of " + Quoted(given);
    if (!isKnown) {
        code = EqualsButCase(given, meant) ? Code("wrong-case-text") : Code("unknown-text");
        message = Quoted(given) + " is no text of this key: it becomes `Invalid`";
    }
    Finding& finding = Add(code, takenLine, ValueRange(), CurrentPath(), std::move(message));
    if (!meant.empty()) {
        finding.help = "did you mean " + Quoted(meant) + "?";
        finding.replacement = isTruth ? ToUtf8(meant) : '"' + ToUtf8(meant) + '"';
        finding.hasReplacement = true;
    } else if (!isTruth) {
        finding.help = AllowedTexts(table);
    }
}

void TextReader::NoteCount(const OpenList& list) {
    asks[static_cast<std::size_t>(list.ask)].value = list.entries;
    if (list.line == kNone) {
        return;
    }
    const std::int32_t limit = list.shape.limit;
    const bool isValueCounted = !list.isDoubtful || list.count != 0;
    takenLine = list.line;
    const auto add = [&](const FindingCode* code, std::string message) -> Finding& {
        return Add(code, list.line, ValueRange(), PathOf(asks, list.ask), std::move(message));
    };
    if (limit != ListShape::kUnlimited && std::max(list.entries, list.count) > limit &&
        list.shape.rule != ListRule::Keyed) {
        add(Code("list-too-long"),
            "the list has " + std::to_string(std::max(list.entries, list.count)) + " entries, and there is room for " +
                std::to_string(limit) +
                (list.shape.rule == ListRule::Fatal ? ": a conversion ends abnormally" : ": the others are lost"));
    } else if (list.shape.rule == ListRule::Exact && list.count != limit && isValueCounted) {
        Finding& finding = add(Code("count-mismatch"), "the list always has " + std::to_string(limit) + " entries");
        finding.help = "write " + std::to_string(limit);
    } else if (!list.isDoubtful && list.entries != list.count) {
        Finding& finding = add(Code("count-mismatch"), "the count is " + std::to_string(list.count) + ", but " +
                                                           std::to_string(list.entries) +
                                                           (list.entries == 1 ? " entry follows" : " entries follow"));
        finding.help = "write " + std::to_string(list.entries);
        finding.replacement = std::to_string(list.entries);
        finding.hasReplacement = true;
    }
}

void TextReader::NoteNegativeCount(std::int32_t count) {
    if (mode == Mode::Noting) {
        Add(Code("number-out-of-range"), takenLine, ValueRange(), CurrentPath(),
            std::to_string(count) + " is no count: the list becomes empty");
    }
}

void TextReader::NoteName(std::u16string_view name) {
    if (name.empty() || names->Has(nextName, name)) {
        return;
    }
    isUnclean = isUnclean || mode == Mode::Strict;
    if (mode == Mode::Noting) {
        Finding& finding = Add(Code("unresolved-name"), takenLine, ValueRange(), CurrentPath(),
                               "there is no " + std::string(names->WhatIs(nextName)) + " " + Quoted(name));
        if (const std::u16string_view nearest = names->NearestTo(nextName, name); !nearest.empty()) {
            finding.help = "did you mean " + Quoted(nearest) + "?";
            finding.replacement = '"' + ToUtf8(nearest) + '"';
            finding.hasReplacement = true;
        }
    }
}

} // namespace Vorn
