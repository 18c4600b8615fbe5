#include "tools/kelvanekit/check/textreader.h"

#include "engine/archive/archiveheader.h"
#include "engine/string/utf8.h"
#include "tools/kelvanekit/findings/findingcodes.h"

#include <algorithm>

// What TextReader notes of the lines of a file.

namespace Vorn {

namespace {

// Units of a line, its end counted as one.
constexpr std::size_t kMostLineUnits = 1023;

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

void TextReader::NoteAsked(Label label, FieldKind kind, std::int32_t fieldLine) {
    if (IsNoting()) [[unlikely]] {
        NoteField(label, kind, fieldLine, kNone);
    }
}

Finding& TextReader::AddAt(const FindingCode* code, std::int32_t atLine, TextRange range, std::string key,
                           std::string message) {
    Finding& finding = findings.emplace_back();
    finding.place = {std::min(atLine, text.LineCount()) + 1, range.begin, range.end};
    finding.code = code;
    finding.key = std::move(key);
    finding.message = std::move(message);
    return finding;
}

void TextReader::NoteValue(ValueProblem& problem) {
    Spoil();
    if (!IsNoting()) {
        return;
    }
    const auto begin = static_cast<std::int32_t>(valueBegin);
    Finding& finding = AddAt(problem.code, takenLine, {begin + problem.range.begin, begin + problem.range.end},
                             CurrentPath(), std::move(problem.message));
    finding.help = std::move(problem.help);
    finding.replacement = std::move(problem.replacement);
    finding.hasReplacement = problem.hasReplacement;
}

bool TextReader::NoteLine(std::string_view content) {
    if (mode == Mode::Probing) {
        return true;
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
    if (code == nullptr) {
        return true;
    }
    Spoil();
    if (IsNoting()) {
        AddAt(code, takenLine, {static_cast<std::int32_t>(place), static_cast<std::int32_t>(content.size())},
              CurrentPath(), std::move(message));
    }
    return false;
}

void TextReader::NoteMissing(bool isHeader) {
    if (!IsNoting()) {
        return;
    }
    const AskedField& field = asks.back();
    if (NoteJoined(ToUtf8(field.label))) {
        return;
    }
    const std::string name = field.kind == FieldKind::Row ? "a row" : Quoted(field.label);
    const bool isGroup = field.kind == FieldKind::Record;
    Finding& finding = Add(isGroup ? Code("missing-section") : Code("missing-key"), LastAsk(),
                           name + " is missing" +
                               (isHeader  ? ", though the keys of its group are there"
                                : isGroup ? ", and with it its group of keys"
                                          : ""));
    finding.help =
        cursor.Line() < text.LineCount() ? "it belongs in front of this line" : "it belongs at the end of the file";
}

// A key that stands behind the value of the line in front, where something was noted already. False if it does not.
bool TextReader::NoteJoined(std::string_view key) {
    if (key.empty() || findings.empty() || findings.back().place.line != cursor.Line()) {
        return false;
    }
    const std::string_view content = text.Line(cursor.Line() - 1);
    std::string_view rest = Trimmed(content);
    do {
        rest = Trimmed(rest.substr(KeyOf(rest).size()));
        if (rest.empty()) {
            return false;
        }
    } while (!KeyOf(rest).ends_with(key));
    rest.remove_prefix(KeyOf(rest).size() - key.size());
    const auto place = static_cast<std::size_t>(rest.data() - content.data());
    if (std::ranges::count(content.substr(0, place), '"') % 2 != 0) {
        return false;
    }
    Finding& finding = findings.back();
    if (finding.code != Code("joined-lines")) {
        finding = {};
        finding.code = Code("joined-lines");
        finding.place = {cursor.Line(), static_cast<std::int32_t>(place),
                         static_cast<std::int32_t>(place + rest.size())};
        finding.key = PathOf(asks, LastAsk());
        finding.message = Quoted(key) + " stands on the line of another key, and is lost";
        finding.help = "begin a new line with it";
    }
    return true;
}

void TextReader::NoteTruncated() {
    if (IsNoting()) {
        Add(Code("truncated"), LastAsk(),
            "the file ends here, where " + Quoted(asks.back().label) + " and more should follow");
    }
}

void TextReader::NoteSkipped(std::int32_t count) {
    const OpenList* ended = endedCount > 0 ? &endedLists[(endedCount - 1) % kLatest] : nullptr;
    const bool isSurplus = ended != nullptr && ended->endAsk == askCount && ended->shape.rule == ListRule::Fatal &&
                           ended->count > ended->shape.limit;
    if (!IsNoting() || isSurplus || isRestMissing) {
        return;
    }
    const std::int32_t line = cursor.Line();
    const std::string_view content = text.Line(line);
    const std::string_view key = KeyOf(content);
    const auto add = [&](const FindingCode* code, const std::string& message, const char* help = "") {
        AddAt(code, line, Whole(content), PathBelow(asks, isAtEnd ? kNone : ParentAsk(), key), message).help = help;
    };
    if (isAtEnd) {
        add(Code("trailing-content"), "content behind the last key is left out",
            IsLabel(key, kTextHeader) ? "a second file seems to follow: take it out" : "");
    } else if (key.empty()) {
        AddAt(Code("unexpected-line"), line, {}, {}, "an empty line stands in the way of all keys behind it").help =
            "take the line out";
    } else if (const Remark remark = RemarkOf(key); remark == Remark::Comment) {
        add(Code("unexpected-line"), "a comment stands in the way of all keys behind it: there are no comments",
            "take the line out");
    } else if (remark != Remark::None) {
        add(Code("unexpected-line"), "a merge was not finished here",
            "keep one of the two versions, and take the marks out");
    } else if (count > 1) {
        add(Code("unexpected-section"), "no key asks for these " + std::to_string(count) + " lines",
            "take them out, or move them to their place");
    } else if (line > 0 && KeyOf(text.Line(line - 1)) == key) {
        add(Code("doubled-line"), Quoted(key) + " stands twice", "take one of the two lines out");
    } else {
        add(Code("unexpected-line"), "no key " + Quoted(key) + " is asked for here",
            "take the line out, or move it to its place");
    }
}

void TextReader::NoteSwapped() {
    if (IsNoting()) {
        const std::string_view content = text.Line(cursor.Line());
        const std::string_view next = KeyOf(text.Line(cursor.Line() + 1));
        AddAt(Code("swapped-lines"), cursor.Line(), Whole(content), PathBelow(asks, ParentAsk(), KeyOf(content)),
              Quoted(KeyOf(content)) + " stands in front of " + Quoted(next) + ", and should follow it");
    }
}

// The key is spelt right if `isAttached`, but something else than a blank is between it and its value.
void TextReader::NoteMisspelt(Label label, std::string_view key, bool isAttached) {
    if (!IsNoting()) {
        return;
    }
    const auto begin = static_cast<std::int32_t>(key.data() - takenText.data());
    const std::string message =
        isAttached ? "a blank, and nothing else, should stand between the key " + Quoted(label) + " and its value"
                   : Quoted(key) + " stands where the key " + Quoted(label) + " belongs";
    Finding& finding = AddAt(Code("misspelt-key"), takenLine, {begin, begin + static_cast<std::int32_t>(key.size())},
                             CurrentPath(), message);
    finding.help = isAttached ? "" : "did you mean " + Quoted(label) + "?";
    const bool lacksBlank = isAttached && !takenText.substr(valueBegin).starts_with(' ');
    finding.replacement = ToUtf8(label) + (lacksBlank ? " " : "");
    finding.hasReplacement = true;
}

// A truth value that the keys behind it do not belong to.
void TextReader::NoteTruth(bool given) {
    if (IsNoting()) {
        const std::string meant = given ? "FALSE" : "TRUE";
        Finding& finding = Add(Code("wrong-choice"), LastAsk(),
                               "the keys that follow are not those of " + Quoted(given ? "TRUE" : "FALSE"));
        finding.help = "did you mean " + Quoted(meant) + "?";
        finding.replacement = meant;
        finding.hasReplacement = true;
    }
}

} // namespace Vorn
