#include "tools/kelvanekit/lsp/languageserver.h"

#include "tools/kelvane/contentconverter.h"
#include "tools/kelvanekit/check/sourcetext.h"
#include "tools/kelvanekit/fileuri.h"
#include "tools/kelvanekit/findings/findingcodes.h"
#include "tools/kelvanekit/inputfile.h"
#include "tools/kelvanekit/lsp/contentfeatures.h"
#include "tools/kelvanekit/visibletext.h"

#include <algorithm>

// What LanguageServer answers about documents.

namespace Vorn {

namespace {

bool IsOfName(const Finding& finding) {
    return finding.code == Code("unresolved-name") || finding.code == Code("wrong-class");
}

// The part of a text that another one has something else for, as whole lines.
struct ChangedPart {
    std::size_t begin;
    std::size_t end;
    std::string_view text;
};

ChangedPart FindChanged(std::string_view from, std::string_view to) {
    const auto same = std::ranges::mismatch(from, to);
    std::size_t begin = static_cast<std::size_t>(same.in1 - from.begin());
    begin = begin == 0 ? 0 : from.rfind('\n', begin - 1) + 1;
    from.remove_prefix(begin);
    to.remove_prefix(begin);
    const auto last = std::mismatch(from.rbegin(), from.rend(), to.rbegin(), to.rend());
    const auto common = static_cast<std::size_t>(last.first - from.rbegin());
    const std::size_t lineFeed = from.find('\n', from.size() - common);
    const std::size_t rest = lineFeed == std::string_view::npos ? 0 : from.size() - lineFeed - 1;
    return {begin, begin + from.size() - rest, to.substr(0, to.size() - rest)};
}

} // namespace

LanguageServer::Json LanguageServer::Complete(const Json& params) {
    TextDocument& document = DocumentOf(params);
    const std::size_t cursor = ByteOf(document, params.at("position"));
    Json items = Json::array();
    for (Completion& completion : CompletionsAt(document, cursor, Index(), hasSnippets)) {
        Json item = {{"label", completion.label},
                     {"kind", completion.isKey ? 5 : 12},
                     {"sortText", std::to_string(100000 + items.size())},
                     {"filterText", completion.filter},
                     {"textEdit",
                      {{"range", RangeOf(document, completion.begin, completion.end)}, {"newText", completion.text}}}};
        if (!completion.detail.empty()) {
            item["detail"] = completion.detail;
        }
        if (completion.isSnippet) {
            item["insertTextFormat"] = 2;
        }
        items.push_back(std::move(item));
    }
    return {{"isIncomplete", false}, {"items", std::move(items)}};
}

LanguageServer::Json LanguageServer::Hover(const Json& params) {
    TextDocument& document = DocumentOf(params);
    const std::size_t cursor = ByteOf(document, params.at("position"));
    const HoverText hover = HoverAt(document, cursor);
    if (hover.text.empty()) {
        return {};
    }
    return {{"contents", {{"kind", "markdown"}, {"value", WellFormed(hover.text)}}},
            {"range", RangeOf(document, hover.begin, hover.end)}};
}

// What an editor has of a file goes before what the disk has. A file that cannot be read is empty.
TextDocument& LanguageServer::ContentOf(const SourceFile& file, Contents& contents) {
    const std::string uri = UriOfFile(file.name);
    if (const auto open = documents.find(uri); open != documents.end()) {
        return open->second;
    }
    const auto found = contents.find(uri);
    if (found != contents.end()) {
        return found->second;
    }
    InputFile input;
    input.Read(file.name);
    const SourceText text(input.Bytes());
    return contents.emplace(uri, TextDocument(file.kind, {text.Start(), text.End()})).first->second;
}

LanguageServer::Json LanguageServer::LocationOf(NameKind kind, std::u16string_view name, const SourceFile& file,
                                                Contents& contents) {
    const TextDocument& content = ContentOf(file, contents);
    const std::size_t place = DefinitionIn(content.Text(), kind, name);
    return {{"uri", UriOfFile(file.name)}, {"range", RangeOf(content, place, place)}};
}

LanguageServer::Json LanguageServer::Definition(const Json& params) {
    TextDocument& document = DocumentOf(params);
    const NameAtCursor name = NameAt(document, ByteOf(document, params.at("position")), UriIn(params));
    const SourceFile* file = Index().Find(name.kind, name.name);
    Contents contents;
    return file == nullptr ? Json() : LocationOf(name.kind, name.name, *file, contents);
}

LanguageServer::Json LanguageServer::References(const Json& params) {
    TextDocument& document = DocumentOf(params);
    const NameAtCursor name = NameAt(document, ByteOf(document, params.at("position")), UriIn(params));
    Json locations = Json::array();
    if (name.kind == NameKind::None) {
        return locations;
    }
    const SourceFile* definition = Index().Find(name.kind, name.name);
    if (definition != nullptr && params.value("/context/includeDeclaration"_json_pointer, true)) {
        Contents contents;
        locations.push_back(LocationOf(name.kind, name.name, *definition, contents));
    }
    const auto addFrom = [&](const std::string& uri, TextDocument& content) {
        for (const auto& [begin, end] : ReferencesIn(content, name)) {
            locations.push_back({{"uri", uri}, {"range", RangeOf(content, begin, end)}});
        }
    };
    for (const SourceFile& file : Index().Files()) {
        if (const std::string uri = UriOfFile(file.name); !documents.contains(uri)) {
            // One at a time, however many there are.
            Contents contents;
            addFrom(uri, ContentOf(file, contents));
        }
    }
    for (auto& [uri, content] : documents) {
        addFrom(uri, content);
    }
    return locations;
}

LanguageServer::Json LanguageServer::DocumentSymbols(const Json& params) {
    TextDocument& document = DocumentOf(params);
    const auto toJson = [&](const auto& self, const std::vector<ContentSymbol>& symbols) -> Json {
        Json list = Json::array();
        for (const ContentSymbol& symbol : symbols) {
            list.push_back({{"name", WellFormed(symbol.name)},
                            {"detail", WellFormed(symbol.detail)},
                            {"kind", symbol.isGroup ? 19 : 15},
                            {"range", RangeOf(document, symbol.begin, symbol.end)},
                            {"selectionRange", RangeOf(document, symbol.begin, symbol.lineEnd)},
                            {"children", self(self, symbol.children)}});
        }
        return list;
    };
    return toJson(toJson, SymbolsOf(document));
}

LanguageServer::Json LanguageServer::Foldings(const Json& params) {
    TextDocument& document = DocumentOf(params);
    Json ranges = Json::array();
    const auto add = [&](const auto& self, const std::vector<ContentSymbol>& symbols) -> void {
        for (const ContentSymbol& symbol : symbols) {
            const auto lineOf = [&](std::size_t byte) {
                return document.Lines().PositionOf(document.Text(), byte, units).line;
            };
            if (lineOf(symbol.end) > lineOf(symbol.begin)) {
                ranges.push_back({{"startLine", lineOf(symbol.begin)}, {"endLine", lineOf(symbol.end)}});
            }
            self(self, symbol.children);
        }
    };
    add(add, SymbolsOf(document));
    return ranges;
}

LanguageServer::Json LanguageServer::WorkspaceSymbols(const Json& params) {
    const std::u16string query = ToUnits(params.at("query").get<std::string>());
    Json symbols = Json::array();
    Contents contents;
    for (const NameKind kind : {NameKind::Entity, NameKind::Particle, NameKind::Mesh, NameKind::Brush}) {
        for (const auto& [name, file] : Index().Of(kind)) {
            if (!ContainsIgnoringCase(name, query)) {
                continue;
            }
            const Json start = {{"line", 0}, {"character", 0}};
            const Json location = kind == NameKind::Brush ? LocationOf(kind, name, *file, contents)
                                                          : Json{{"uri", UriOfFile(file->name)},
                                                                 {"range", {{"start", start}, {"end", start}}}};
            symbols.push_back({{"name", ToUtf8(name)},
                               {"kind", 5},
                               {"containerName", KnownNames::WhatIs(kind)},
                               {"location", location}});
        }
    }
    return symbols;
}

LanguageServer::Json LanguageServer::CodeActions(const Json& params) {
    TextDocument& document = DocumentOf(params);
    const std::string uri = UriIn(params);
    const std::size_t begin = ByteOf(document, params.at("range").at("start"));
    const std::size_t end = ByteOf(document, params.at("range").at("end"));
    const std::int32_t firstLine = document.CheckedLineAt(begin) + 1;
    const std::int32_t lastLine = document.CheckedLineAt(end) + 1;
    Json actions = Json::array();
    for (const Finding& finding : FindingsOf(uri, document)) {
        if (finding.place.line < firstLine || finding.place.line > lastLine) {
            continue;
        }
        if (const std::optional<Cure> cure = CureOf(document, finding)) {
            const Json edit = {{"range", RangeOf(document, cure->begin, cure->end)},
                               {"newText", WellFormed(cure->text)}};
            actions.push_back({{"title", WellFormed(cure->title)},
                               {"kind", "quickfix"},
                               {"isPreferred", true},
                               {"edit", {{"changes", {{uri, Json::array({edit})}}}}}});
        }
    }
    return actions;
}

// Nothing that is wrong may be lost by it, so only a content without findings is written anew. Names are kept as they
// are.
LanguageServer::Json LanguageServer::Formatting(const Json& params) {
    TextDocument& document = DocumentOf(params);
    if (!std::ranges::all_of(FindingsOf(UriIn(params), document), IsOfName)) {
        return Json::array();
    }
    ContentConverter converter;
    if (converter.Convert(document.Kind(), FileOfUri(UriIn(params)), document.Text(), FileArchiveType::Text) !=
        ConversionResult::Converted) {
        return Json::array();
    }
    const SourceText written(converter.Bytes());
    std::string text(written.Start(), written.End());
    if (document.Text().find('\r') == std::string_view::npos) {
        // An editor may have the ends of lines to itself.
        std::erase(text, '\r');
    }
    if (text == document.Text()) {
        return Json::array();
    }
    const ChangedPart part = FindChanged(document.Text(), text);
    return Json::array({{{"range", RangeOf(document, part.begin, part.end)}, {"newText", part.text}}});
}

} // namespace Vorn
