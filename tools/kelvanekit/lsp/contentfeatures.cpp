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

    // The lines of a group behind its own, each behind a line feed.
    std::string SectionOf(std::int32_t ask) {
        const AskedField& field = fields.asks[static_cast<std::size_t>(ask)];
        std::string text;
        if (field.kind != FieldKind::Record) {
            return text;
        }
        for (const SectionLine& line : Vorn::SectionOf(kind, fields.asks, ask)) {
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

// The keys that belong where a line stands, found by reading the text without it.
std::vector<Completion> KeysAt(const TextDocument& document, const LineParts& parts, std::size_t cursor,
                               bool hasSnippets) {
    std::string rest(document.Text());
    const std::size_t next = document.CheckedLineStart(parts.line + 1);
    rest.erase(parts.begin, std::max(next, parts.end) - parts.begin);
    const TextFields fields = ReadTextFields(document.Kind(), rest);
    const auto count = static_cast<std::int32_t>(fields.asks.size());
    const auto isBehind = [&](const AskedField& field) { return !field.IsMissing() && field.line >= parts.line; };
    const auto behind = static_cast<std::int32_t>(std::ranges::find_if(fields.asks, isBehind) - fields.asks.begin());
    std::int32_t first = behind;
    while (first > 0 && fields.asks[static_cast<std::size_t>(first) - 1].IsMissing()) {
        --first;
    }
    // A field of the section around ends a section.
    const auto depthOf = [&](std::int32_t ask) { return fields.asks[static_cast<std::size_t>(ask)].depth; };
    std::int32_t end = first;
    while (end < std::min(behind, count) && depthOf(end) >= depthOf(first)) {
        ++end;
    }
    const std::string indentation(Between(document, parts.begin, parts.keyBegin));
    const bool hasValue = parts.valueBegin < parts.valueEnd;
    std::vector<Completion> completions;
    const auto add = [&](std::int32_t begin, std::int32_t stop) {
        Completion& completion = completions.emplace_back();
        completion.label = ToUtf8(fields.asks[static_cast<std::size_t>(begin)].label);
        completion.filter = hasValue ? completion.label : indentation + completion.label;
        completion.isKey = true;
        completion.isSnippet = hasSnippets && !hasValue;
        completion.begin = hasValue ? parts.keyBegin : parts.begin;
        completion.end = hasValue ? parts.keyEnd : std::max(parts.keyEnd, cursor);
        MissingLines lines(document.Kind(), fields, completion.isSnippet);
        for (std::int32_t ask = begin; ask < stop; ++ask) {
            completion.text += (ask == begin ? "" : "\n") + lines.LineOf(ask) + lines.SectionOf(ask);
        }
        const auto lineFeeds = std::ranges::count(completion.text, '\n');
        completion.detail = lineFeeds > 0 ? "and " + std::to_string(lineFeeds) + " lines that belong to it" : "";
        if (hasValue) {
            completion.text = completion.label;
        }
    };
    for (std::int32_t ask = first; ask < end; ++ask) {
        if (fields.asks[static_cast<std::size_t>(ask)].kind != FieldKind::Row) {
            add(ask, ask + 1);
        }
        if (ask == first && end - first > 1 && !hasValue) {
            add(ask, end);
        }
    }
    return completions;
}

} // namespace

std::vector<Completion> CompletionsAt(TextDocument& document, std::size_t cursor, const WorkspaceIndex& index,
                                      bool hasSnippets) {
    const LineParts parts = PartsAt(document, cursor);
    return cursor > parts.keyEnd && parts.keyEnd > parts.keyBegin ? ValuesAt(document, parts, cursor, index)
                                                                  : KeysAt(document, parts, cursor, hasSnippets);
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
                    (isBehindEnd ? "\n" : "") + line + (hasParts ? "" : lines.SectionOf(ask)) + '\n', place, place};
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
