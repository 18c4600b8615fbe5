#include "tools/kelvanekit/lsp/contentfeatures.h"

#include "engine/archive/enumtable.h"
#include "tools/kelvanekit/check/sourcetext.h"
#include "tools/kelvanekit/fileuri.h"
#include "tools/kelvanekit/lsp/fieldreference.h"
#include "tools/kelvanekit/namelists.h"

#include <algorithm>

namespace Vorn {

namespace {

// A line of a document with its parts as bytes of the document.
struct LineParts {
    std::int32_t line;
    std::size_t begin;
    std::size_t keyBegin;
    std::size_t keyEnd;
    // Without white space at either end; both at the end of the line if there is no value.
    std::size_t valueBegin;
    std::size_t valueEnd;
    std::size_t end;
};

LineParts PartsAt(const TextDocument& document, std::size_t byte) {
    const std::string_view text = document.Text();
    LineParts parts{};
    parts.line = document.CheckedLineAt(byte);
    parts.begin = document.CheckedLineStart(parts.line);
    std::string_view line = text.substr(parts.begin, std::min(text.find('\n', parts.begin), text.size()) - parts.begin);
    line = line.ends_with('\r') ? line.substr(0, line.size() - 1) : line;
    parts.end = parts.begin + line.size();
    parts.keyBegin = parts.begin + static_cast<std::size_t>(IndentationOf(line));
    parts.keyEnd = parts.keyBegin + KeyOf(line).size();
    const std::string_view value = Trimmed(text.substr(parts.keyEnd, parts.end - parts.keyEnd));
    parts.valueBegin = value.empty() ? parts.end : static_cast<std::size_t>(value.data() - text.data());
    parts.valueEnd = parts.valueBegin + value.size();
    return parts;
}

std::string_view Between(const TextDocument& document, std::size_t begin, std::size_t end) {
    return document.Text().substr(begin, end - begin);
}

std::string InQuotes(std::u16string_view text) {
    return '"' + ToUtf8(text) + '"';
}

// A text value without its quotes.
std::u16string Unquoted(std::string_view value) {
    const std::size_t first = value.find('"');
    const std::size_t last = value.rfind('"');
    return first == last ? std::u16string() : ToUnits(value.substr(first + 1, last - first - 1));
}

// Without folders and the ending of a content file.
std::u16string_view BareName(std::u16string_view name) {
    name = name.substr(name.find_last_of(u"/\\") + 1);
    return ContentKindOfFile(ToUtf8(name)) ? name.substr(0, name.rfind(u'.')) : name;
}

const AskedField* FieldAt(TextDocument& document, std::int32_t line) {
    const TextFields& fields = document.Fields();
    const std::int32_t ask = fields.AskAt(line);
    return ask == kNone ? nullptr : &fields.asks[static_cast<std::size_t>(ask)];
}

std::vector<std::string> ValuesOf(const AskedField& field, const WorkspaceIndex& index) {
    std::vector<std::string> values;
    if (field.kind == FieldKind::Bool) {
        return {"TRUE", "FALSE"};
    }
    if (field.table != nullptr) {
        for (std::int32_t row = 0; row < field.table->rowCount; ++row) {
            values.push_back(InQuotes(field.table->rows[row]));
        }
    } else if (field.name != NameKind::None) {
        for (const auto& [name, file] : index.Of(field.name)) {
            values.push_back(InQuotes(name));
        }
    }
    return values;
}

std::vector<Completion> ValuesAt(TextDocument& document, const LineParts& parts, std::size_t cursor,
                                 const WorkspaceIndex& index) {
    std::vector<Completion> completions;
    const AskedField* field = FieldAt(document, parts.line);
    if (field == nullptr || !IsLabel(Between(document, parts.keyBegin, parts.keyEnd), field->label)) {
        return completions;
    }
    const bool isEmpty = parts.valueBegin == parts.valueEnd;
    const bool isQuoted = Between(document, parts.valueBegin, parts.valueEnd).starts_with('"');
    for (std::string& value : ValuesOf(*field, index)) {
        Completion& completion = completions.emplace_back();
        completion.label = value;
        completion.filter = isQuoted || isEmpty || !value.starts_with('"') ? value : value.substr(1);
        completion.text = std::move(value);
        completion.begin = isEmpty ? cursor : std::min(parts.valueBegin, cursor);
        completion.end = isEmpty ? cursor : std::max(parts.valueEnd, cursor);
    }
    return completions;
}

// Texts with places to fill in: what would mean one is escaped.
std::string SnippetText(std::string_view text, std::string_view special) {
    std::string escaped;
    for (const char byte : text) {
        if (special.find(byte) != std::string_view::npos) {
            escaped += '\\';
        }
        escaped += byte;
    }
    return escaped;
}

// The lines of fields that a text lacks.
class MissingLines {
public:
    MissingLines(ContentKind _kind, const TextFields& _fields, bool _isSnippet)
        : kind(_kind), fields(_fields), isSnippet(_isSnippet) {}

    // The lines of a group behind its own, and those of an entry behind a count, each behind a line feed.
    std::string LinesBelow(std::int32_t ask) {
        const AskedField& field = fields.asks[static_cast<std::size_t>(ask)];
        std::string text;
        for (const SectionLine& line : Vorn::LinesBelow(kind, fields.asks, ask)) {
            text += '\n' + std::string(static_cast<std::size_t>(field.depth + line.depth), '\t') + line.key;
            text += line.value.empty() ? "" : ' ' + Place(line.value);
        }
        return text;
    }

    // The line of a field without its end.
    std::string LineOf(std::int32_t ask) {
        const AskedField& field = fields.asks[static_cast<std::size_t>(ask)];
        std::string line(static_cast<std::size_t>(field.depth), '\t');
        if (field.kind != FieldKind::Row) {
            line += ToUtf8(field.label);
        }
        const bool isGroup =
            field.kind == FieldKind::Record || field.kind == FieldKind::Matrix33 || field.kind == FieldKind::Matrix44;
        return isGroup ? line : line + (field.kind == FieldKind::Row ? "" : " ") + ValueOf(ask, field);
    }

    // A field with all that belongs to it.
    std::string SectionOf(std::int32_t ask) {
        const std::string line = LineOf(ask);
        return fields.asks[static_cast<std::size_t>(ask)].kind == FieldKind::Record ? line + LinesBelow(ask) : line;
    }

private:
    std::string ValueOf(std::int32_t ask, const AskedField& field) {
        const auto found = fields.missingValues.find(ask);
        std::string value = found == fields.missingValues.end() ? std::string() : found->second;
        if (field.table != nullptr && field.table->rowCount > 0) {
            value = InQuotes(field.table->rows[0]);
        }
        if (!isSnippet || field.table == nullptr) {
            return Place(value);
        }
        const std::string place = std::to_string(++placeCount);
        std::string choices;
        for (std::int32_t row = 0; row < field.table->rowCount; ++row) {
            choices += (row == 0 ? "" : ",") + SnippetText(InQuotes(field.table->rows[row]), ",|\\$}");
        }
        return "${" + place + '|' + choices + "|}";
    }

    // A value to be filled in.
    std::string Place(const std::string& value) {
        return isSnippet ? "${" + std::to_string(++placeCount) + ':' + SnippetText(value, "$}\\") + '}' : value;
    }

    const ContentKind kind;
    const TextFields& fields;
    const bool isSnippet;
    int placeCount = 0;
};

// What can stand at a line, found by reading the text without it.
class KeyOffers {
public:
    KeyOffers(const TextDocument& _document, const LineParts& _parts, std::size_t _cursor, bool _hasSnippets)
        : document(_document), parts(_parts), cursor(_cursor), hasValue(_parts.valueBegin < _parts.valueEnd),
          isSnippet(_hasSnippets && !hasValue), fields(FieldsWithout(_document, _parts)), asks(fields.asks) {
        const auto isBehind = [&](const AskedField& field) { return !field.IsMissing() && field.line >= parts.line; };
        behind = static_cast<std::int32_t>(std::ranges::find_if(asks, isBehind) - asks.begin());
        first = behind;
        while (first > 0 && At(first - 1).IsMissing()) {
            --first;
        }
    }

    std::vector<Completion> All() {
        AddMissing();
        AddEntries();
        return std::move(completions);
    }

private:
    static TextFields FieldsWithout(const TextDocument& document, const LineParts& parts) {
        std::string rest(document.Text());
        const std::size_t next = document.CheckedLineStart(parts.line + 1);
        rest.erase(parts.begin, std::max(next, parts.end) - parts.begin);
        return ReadTextFields(document.Kind(), rest);
    }

    const AskedField& At(std::int32_t ask) const { return asks[static_cast<std::size_t>(ask)]; }
    MissingLines Lines() const { return MissingLines(document.Kind(), fields, isSnippet); }

    // The keys that are missing at the line, up to a field of the section around. The first comes with all others too.
    void AddMissing() {
        std::int32_t end = first;
        while (end < behind && At(end).depth >= At(first).depth) {
            ++end;
        }
        for (std::int32_t ask = first; ask < end; ++ask) {
            if (At(ask).kind != FieldKind::Row) {
                Add(ToUtf8(At(ask).label), Lines().SectionOf(ask));
            }
            if (ask == first && end - first > 1 && !hasValue) {
                MissingLines lines = Lines();
                std::string text = lines.SectionOf(ask);
                for (std::int32_t next = ask + 1; next < end; ++next) {
                    text += '\n' + lines.SectionOf(next);
                }
                Add(ToUtf8(At(ask).label), text);
            }
        }
    }

    // One more entry of each list that the line lies in or behind, the innermost first.
    void AddEntries() {
        for (std::int32_t ask = first - 1; ask >= 0; ask = At(ask).parent) {
            const std::int32_t list = At(ask).isCount ? ask : At(ask).list;
            if (list != kNone && HasRoom(list) && !IsInsideEntry(list)) {
                const std::string lines = Lines().LinesBelow(list);
                const std::string_view key = Trimmed(std::string_view(lines).substr(0, lines.find('\n', 1)));
                if (!key.empty()) {
                    Add(std::string(KeyOf(key)), lines.substr(1));
                }
            }
        }
    }

    bool HasRoom(std::int32_t list) const {
        const AskedField& count = At(list);
        return count.capacity == ListShape::kUnlimited || count.value < count.capacity;
    }

    // Whether more of the entry that the line stands in follows.
    bool IsInsideEntry(std::int32_t list) const {
        if (first == static_cast<std::int32_t>(asks.size()) || At(first).depth < At(list).depth) {
            return false;
        }
        const auto entry = std::ranges::find(asks, list, &AskedField::list);
        return At(first).depth > At(list).depth || (At(first).list == list && At(first).label != entry->label);
    }

    void Add(const std::string& label, const std::string& text) {
        const bool isOffered = std::ranges::any_of(
            completions, [&](const Completion& other) { return other.label == label && other.text == text; });
        if (isOffered) {
            return;
        }
        Completion& completion = completions.emplace_back();
        completion.label = label;
        completion.filter = hasValue ? label : std::string(Between(document, parts.begin, parts.keyBegin)) + label;
        completion.isKey = true;
        completion.isSnippet = isSnippet;
        completion.begin = hasValue ? parts.keyBegin : parts.begin;
        completion.end = hasValue ? parts.keyEnd : std::max(parts.keyEnd, cursor);
        completion.text = hasValue ? label : text;
        const auto lineFeeds = std::ranges::count(text, '\n');
        completion.detail = lineFeeds > 0 ? "and " + std::to_string(lineFeeds) + " lines that belong to it" : "";
    }

    const TextDocument& document;
    const LineParts& parts;
    const std::size_t cursor;
    const bool hasValue;
    const bool isSnippet;
    const TextFields fields;
    const AskedFields& asks;
    // The first field behind the line, and the first of those that are missing in front of it.
    std::int32_t behind = 0;
    std::int32_t first = 0;
    std::vector<Completion> completions;
};

} // namespace

std::vector<Completion> CompletionsAt(TextDocument& document, std::size_t cursor, const WorkspaceIndex& index,
                                      bool hasSnippets) {
    const LineParts parts = PartsAt(document, cursor);
    return cursor > parts.keyEnd && parts.keyEnd > parts.keyBegin
               ? ValuesAt(document, parts, cursor, index)
               : KeyOffers(document, parts, cursor, hasSnippets).All();
}

HoverText HoverAt(TextDocument& document, std::size_t cursor) {
    const LineParts parts = PartsAt(document, cursor);
    const std::int32_t ask = document.Fields().AskAt(parts.line);
    if (ask == kNone) {
        return {};
    }
    return {DescribeField(document.Kind(), document.Fields().asks, ask), parts.keyBegin, parts.end};
}

NameAtCursor NameAt(TextDocument& document, std::size_t cursor, const std::string& uri) {
    const LineParts parts = PartsAt(document, cursor);
    const AskedField* field = FieldAt(document, parts.line);
    const std::u16string value = Unquoted(Between(document, parts.valueBegin, parts.valueEnd));
    if (field != nullptr && field->name != NameKind::None) {
        return {field->name, std::u16string(BareName(value))};
    }
    const NameKind own = NameKindOf(document.Kind());
    if (own == NameKind::Brush) {
        return value.empty() ? NameAtCursor() : NameAtCursor{own, value};
    }
    // The first lines stand for the file.
    constexpr std::int32_t kFirstLines = 3;
    const std::string file = FileOfUri(uri);
    return parts.line < kFirstLines ? NameAtCursor{own, std::u16string(BareName(ToUnits(file)))} : NameAtCursor();
}

std::vector<std::pair<std::size_t, std::size_t>> ReferencesIn(TextDocument& document, const NameAtCursor& name) {
    std::vector<std::pair<std::size_t, std::size_t>> places;
    if (document.Text().find(ToUtf8(name.name)) == std::string_view::npos) {
        return places;
    }
    for (const AskedField& field : document.Fields().asks) {
        if (field.name != name.kind || field.IsMissing()) {
            continue;
        }
        const LineParts parts = PartsAt(document, document.CheckedLineStart(field.line));
        const std::u16string value = Unquoted(Between(document, parts.valueBegin, parts.valueEnd));
        if (BareName(value) == name.name) {
            places.emplace_back(parts.valueBegin, parts.valueEnd);
        }
    }
    return places;
}

std::size_t DefinitionIn(std::string_view text, NameKind kind, std::u16string_view name) {
    const std::size_t place = kind == NameKind::Brush ? text.find(InQuotes(name)) : 0;
    return place == std::string_view::npos ? 0 : place;
}

namespace {

// The sections and entries of a document as a tree.
class SymbolTree {
public:
    explicit SymbolTree(TextDocument& _document) : document(_document), asks(_document.Fields().asks) {
        children.resize(asks.size() + 1);
        lastLines.assign(asks.size(), kNone);
        for (std::size_t i = asks.size(); i-- > 0;) {
            lastLines[i] = std::max(lastLines[i], asks[i].line);
            if (asks[i].parent != kNone) {
                std::int32_t& around = lastLines[static_cast<std::size_t>(asks[i].parent)];
                around = std::max(around, lastLines[i]);
            }
        }
        for (std::size_t i = 0; i < asks.size(); ++i) {
            if (IsSymbol(asks[i])) {
                children[PlaceBelow(asks[i].parent)].push_back(i);
            }
        }
    }

    std::vector<ContentSymbol> Below(std::int32_t parent) const {
        std::vector<ContentSymbol> symbols;
        for (const std::size_t ask : children[PlaceBelow(parent)]) {
            symbols.push_back(SymbolOf(ask));
        }
        return symbols;
    }

private:
    // The symbols of the file stand in front of those of its first field.
    static std::size_t PlaceBelow(std::int32_t parent) { return static_cast<std::size_t>(parent) + 1; }
    static bool IsGroup(const AskedField& field) { return field.kind == FieldKind::Record; }
    static bool IsSymbol(const AskedField& field) {
        return !field.IsMissing() && (IsGroup(field) || (field.list != kNone && field.kind != FieldKind::Row));
    }

    ContentSymbol SymbolOf(std::size_t ask) const {
        const AskedField& field = asks[ask];
        const LineParts first = PartsAt(document, document.CheckedLineStart(field.line));
        const LineParts last = PartsAt(document, document.CheckedLineStart(lastLines[ask]));
        ContentSymbol symbol;
        const std::string path = PathOf(asks, static_cast<std::int32_t>(ask));
        symbol.name = path.substr(path.rfind('.') + 1);
        symbol.isGroup = IsGroup(field);
        symbol.begin = first.keyBegin;
        symbol.lineEnd = first.end;
        symbol.end = last.end;
        symbol.detail =
            symbol.isGroup ? FirstText(ask) : std::string(Between(document, first.valueBegin, first.valueEnd));
        symbol.children = Below(static_cast<std::int32_t>(ask));
        return symbol;
    }

    // The first text among the fields of a record.
    std::string FirstText(std::size_t record) const {
        for (std::size_t i = record + 1; i < asks.size() && asks[i].depth > asks[record].depth; ++i) {
            if (asks[i].kind == FieldKind::Text && !asks[i].IsMissing()) {
                const LineParts parts = PartsAt(document, document.CheckedLineStart(asks[i].line));
                return std::string(Between(document, parts.valueBegin, parts.valueEnd));
            }
        }
        return {};
    }

    const TextDocument& document;
    const AskedFields& asks;
    // The symbols below each field, those of the file first.
    std::vector<std::vector<std::size_t>> children;
    std::vector<std::int32_t> lastLines;
};

} // namespace

std::vector<ContentSymbol> SymbolsOf(TextDocument& document) {
    return SymbolTree(document).Below(kNone);
}

namespace {

// The line of a key that is missing, in front of the line at which it was missed.
std::optional<Cure> MissingLineOf(TextDocument& document, const Finding& finding) {
    const TextFields& fields = document.Fields();
    for (const auto& missing : fields.missingValues) {
        const std::int32_t ask = missing.first;
        if (PathOf(fields.asks, ask) != finding.key) {
            continue;
        }
        const bool hasParts = std::ranges::any_of(
            fields.asks, [&](const AskedField& field) { return field.parent == ask && !field.IsMissing(); });
        MissingLines lines(document.Kind(), fields, false);
        const std::string line = lines.LineOf(ask);
        const std::size_t place = document.CheckedLineStart(finding.place.line - 1);
        const bool isBehindEnd = place > 0 && document.Text()[place - 1] != '\n';
        return Cure{"Insert " + Quoted(Trimmed(line)),
                    (isBehindEnd ? "\n" : "") + (hasParts ? line : lines.SectionOf(ask)) + '\n', place, place};
    }
    return std::nullopt;
}

} // namespace

std::optional<Cure> CureOf(TextDocument& document, const Finding& finding) {
    if (finding.place.line == 0) {
        return std::nullopt;
    }
    if (!finding.hasReplacement) {
        return MissingLineOf(document, finding);
    }
    const std::size_t line = document.CheckedLineStart(finding.place.line - 1);
    const bool isInsertion = finding.place.begin == finding.place.end;
    const std::string title = finding.replacement.empty()
                                  ? "Remove it"
                                  : (isInsertion ? "Insert " : "Replace it by ") + Quoted(Trimmed(finding.replacement));
    return Cure{title, finding.replacement, line + static_cast<std::size_t>(finding.place.begin),
                line + static_cast<std::size_t>(finding.place.end)};
}

bool ContainsIgnoringCase(std::u16string_view text, std::u16string_view part) {
    const auto lower = [](char16_t unit) {
        return unit >= u'A' && unit <= u'Z' ? static_cast<char16_t>(unit - u'A' + u'a') : unit;
    };
    const auto isSame = [&](char16_t left, char16_t right) { return lower(left) == lower(right); };
    return part.empty() || std::search(text.begin(), text.end(), part.begin(), part.end(), isSame) != text.end();
}

} // namespace Vorn
