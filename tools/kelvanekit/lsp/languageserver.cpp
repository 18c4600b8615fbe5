#include "tools/kelvanekit/lsp/languageserver.h"

#include "tools/kelvane/contentconverter.h"
#include "tools/kelvanekit/check/sourcetext.h"
#include "tools/kelvanekit/fileuri.h"
#include "tools/kelvanekit/inputfile.h"
#include "tools/kelvanekit/lsp/contentfeatures.h"
#include "tools/kelvanekit/version.h"
#include "tools/kelvanekit/visibletext.h"

#include <algorithm>

namespace Vorn {

namespace {

using Json = LanguageServer::Json;

// The codes of the protocol.
constexpr int kParseError = -32700;
constexpr int kInvalidRequest = -32600;
constexpr int kMethodNotFound = -32601;
constexpr int kInvalidParams = -32602;
constexpr int kInternalError = -32603;
constexpr int kServerNotInitialized = -32002;
constexpr int kRequestCancelled = -32800;

const Json& At(const Json& json, const char* first, const char* second) {
    return json.at(first).at(second);
}

std::string UriIn(const Json& params) {
    return At(params, "textDocument", "uri").get<std::string>();
}

int SeverityOf(const Finding& finding) {
    return static_cast<int>(finding.code->severity) + 1;
}

} // namespace

const LanguageServer::Method LanguageServer::kMethods[] = {
    {"initialize", &LanguageServer::Initialize},
    {"initialized", &LanguageServer::Initialized},
    {"shutdown", &LanguageServer::Shutdown},
    {"exit", &LanguageServer::Exit},
    {"textDocument/didOpen", &LanguageServer::DidOpen},
    {"textDocument/didChange", &LanguageServer::DidChange},
    {"textDocument/didClose", &LanguageServer::DidClose},
    {"workspace/didChangeWatchedFiles", &LanguageServer::DidChangeFiles},
    {"workspace/didChangeWorkspaceFolders", &LanguageServer::DidChangeFolders},
    {"textDocument/completion", &LanguageServer::Complete},
    {"textDocument/hover", &LanguageServer::Hover},
    {"textDocument/definition", &LanguageServer::Definition},
    {"textDocument/references", &LanguageServer::References},
    {"textDocument/documentSymbol", &LanguageServer::DocumentSymbols},
    {"textDocument/foldingRange", &LanguageServer::Foldings},
    {"workspace/symbol", &LanguageServer::WorkspaceSymbols},
    {"textDocument/codeAction", &LanguageServer::CodeActions},
    {"textDocument/formatting", &LanguageServer::Formatting},
};

void LanguageServer::Answer(const Json& id, const char* member, Json content) {
    send({{"jsonrpc", "2.0"}, {"id", id}, {member, std::move(content)}});
}

// Notifications get no answer, whatever is wrong with them.
void LanguageServer::Handle(const Json& message, bool isCancelled) {
    const bool isObject = message.is_object();
    const Json id = isObject && message.contains("id") ? message["id"] : Json();
    const bool isRequest = id.is_string() || id.is_number_integer();
    const bool hasMethod = isObject && message.contains("method") && message["method"].is_string();
    if (isObject && !hasMethod && (message.contains("result") || message.contains("error"))) {
        return;
    }
    Failure failure = {0, {}};
    try {
        if (message.is_discarded()) {
            throw Failure{kParseError, "the message is no JSON"};
        }
        if (!hasMethod || (!id.is_null() && !isRequest)) {
            throw Failure{kInvalidRequest, "the message is no request"};
        }
        if (isCancelled) {
            throw Failure{kRequestCancelled, "the request was cancelled"};
        }
        Json result = Call(message["method"].get<std::string>(), message.value("params", Json::object()));
        if (isRequest) {
            Answer(id, "result", std::move(result));
        }
        return;
    } catch (const Failure& thrown) {
        failure = thrown;
    } catch (const Json::exception& exception) {
        failure = {kInvalidParams, exception.what()};
    } catch (const std::exception& exception) {
        failure = {kInternalError, exception.what()};
    }
    if (isRequest || !hasMethod) {
        Answer(isRequest ? id : Json(), "error", {{"code", failure.code}, {"message", failure.message}});
    }
}

LanguageServer::Json LanguageServer::Call(const std::string& method, const Json& params) {
    const auto found =
        std::ranges::find(kMethods, method, [](const Method& row) { return std::string_view(row.name); });
    if (method != "exit") {
        if (!isInitialized && method != "initialize") {
            throw Failure{kServerNotInitialized, "the server is not initialized"};
        }
        if (isShutDown || (isInitialized && method == "initialize")) {
            throw Failure{kInvalidRequest,
                          isShutDown ? "the server is shut down" : "the server is initialized already"};
        }
    }
    if (found == std::end(kMethods)) {
        throw Failure{kMethodNotFound, "no method '" + method + '\''};
    }
    return (this->*found->handle)(params);
}

LanguageServer::Json LanguageServer::Initialize(const Json& params) {
    const Json capabilities = params.value("capabilities", Json::object());
    const Json encodings = capabilities.value("/general/positionEncodings"_json_pointer, Json::array());
    units = std::ranges::find(encodings, Json("utf-8")) != encodings.end() ? PositionUnits::Utf8 : PositionUnits::Utf16;
    hasSnippets =
        capabilities.value("/textDocument/completion/completionItem/snippetSupport"_json_pointer, Json(false)) == true;
    const Json workspaceFolders = params.value("workspaceFolders", Json());
    if (workspaceFolders.is_array()) {
        for (const Json& folder : workspaceFolders) {
            folders.push_back(FileOfUri(folder.at("uri").get<std::string>()));
        }
    } else if (const Json root = params.value("rootUri", Json()); root.is_string()) {
        folders.push_back(FileOfUri(root.get<std::string>()));
    }
    std::erase(folders, std::string());
    isInitialized = true;
    return {{"serverInfo", {{"name", "kelvane-kit"}, {"version", kVersion}}},
            {"capabilities",
             {{"positionEncoding", units == PositionUnits::Utf8 ? "utf-8" : "utf-16"},
              {"textDocumentSync", {{"openClose", true}, {"change", 2}}},
              {"completionProvider", {{"triggerCharacters", {" ", "\""}}}},
              {"hoverProvider", true},
              {"definitionProvider", true},
              {"referencesProvider", true},
              {"documentSymbolProvider", true},
              {"foldingRangeProvider", true},
              {"workspaceSymbolProvider", true},
              {"codeActionProvider", {{"codeActionKinds", {"quickfix"}}}},
              {"documentFormattingProvider", true},
              {"workspace", {{"workspaceFolders", {{"supported", true}, {"changeNotifications", true}}}}}}}};
}

LanguageServer::Json LanguageServer::Initialized(const Json&) {
    return {};
}

LanguageServer::Json LanguageServer::Shutdown(const Json&) {
    isShutDown = true;
    documents.clear();
    changed.clear();
    return {};
}

LanguageServer::Json LanguageServer::Exit(const Json&) {
    hasEnded = true;
    return {};
}

// A document of no type of content is not kept.
LanguageServer::Json LanguageServer::DidOpen(const Json& params) {
    const std::string uri = UriIn(params);
    if (const auto kind = ContentKindOfFile(FileOfUri(uri))) {
        documents.insert_or_assign(uri, TextDocument(*kind, At(params, "textDocument", "text").get<std::string>()));
        changed.insert(uri);
    }
    return {};
}

LanguageServer::Json LanguageServer::DidChange(const Json& params) {
    const std::string uri = UriIn(params);
    TextDocument& document = DocumentOf(params);
    for (const Json& change : params.at("contentChanges")) {
        const std::string& text = change.at("text").get_ref<const std::string&>();
        if (change.contains("range")) {
            const Json& range = change["range"];
            document.Replace(ByteOf(document, range.at("start")), ByteOf(document, range.at("end")), text);
        } else {
            document.SetText(text);
        }
    }
    changed.insert(uri);
    return {};
}

LanguageServer::Json LanguageServer::DidClose(const Json& params) {
    const std::string uri = UriIn(params);
    if (documents.erase(uri) > 0) {
        changed.erase(uri);
        send({{"jsonrpc", "2.0"},
              {"method", "textDocument/publishDiagnostics"},
              {"params", {{"uri", uri}, {"diagnostics", Json::array()}}}});
    }
    return {};
}

LanguageServer::Json LanguageServer::DidChangeFiles(const Json&) {
    isIndexed = false;
    return {};
}

LanguageServer::Json LanguageServer::DidChangeFolders(const Json& params) {
    for (const Json& folder : At(params, "event", "removed")) {
        std::erase(folders, FileOfUri(folder.at("uri").get<std::string>()));
    }
    for (const Json& folder : At(params, "event", "added")) {
        folders.push_back(FileOfUri(folder.at("uri").get<std::string>()));
    }
    isIndexed = false;
    return {};
}

const WorkspaceIndex& LanguageServer::Index() {
    if (!isIndexed) {
        index.Walk(folders);
        isIndexed = true;
    }
    return index;
}

void LanguageServer::PublishChanged() {
    for (const std::string& uri : std::exchange(changed, {})) {
        send({{"jsonrpc", "2.0"},
              {"method", "textDocument/publishDiagnostics"},
              {"params", {{"uri", uri}, {"diagnostics", Diagnostics(documents.at(uri))}}}});
    }
}

LanguageServer::Json LanguageServer::Diagnostics(TextDocument& document) {
    Json diagnostics = Json::array();
    for (const Finding& finding : document.GetFindings()) {
        diagnostics.push_back(
            {{"range", RangeOf(document, finding.place)},
             {"severity", SeverityOf(finding)},
             {"code", finding.code->name},
             {"source", "kelvane-kit"},
             {"message", WellFormed(finding.help.empty() ? finding.message : finding.message + '\n' + finding.help)}});
    }
    return diagnostics;
}

TextDocument& LanguageServer::DocumentOf(const Json& params) {
    const auto found = documents.find(UriIn(params));
    if (found == documents.end()) {
        throw Failure{kInvalidParams, "the document is not open"};
    }
    return found->second;
}

LanguageServer::Json LanguageServer::RangeOf(const TextDocument& document, std::size_t begin, std::size_t end) const {
    const auto position = [&](std::size_t byte) {
        const Position place = document.Lines().PositionOf(document.Text(), byte, units);
        return Json{{"line", place.line}, {"character", place.character}};
    };
    return {{"start", position(begin)}, {"end", position(end)}};
}

// What lies in a binary file has no range.
LanguageServer::Json LanguageServer::RangeOf(const TextDocument& document, const FindingPlace& place) const {
    const std::size_t line = document.CheckedLineStart(place.line - 1);
    return RangeOf(document, line + static_cast<std::size_t>(place.begin), line + static_cast<std::size_t>(place.end));
}

std::size_t LanguageServer::ByteOf(const TextDocument& document, const Json& position) const {
    return document.Lines().ByteOf(
        document.Text(), {position.at("line").get<std::int32_t>(), position.at("character").get<std::int32_t>()},
        units);
}

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
    const std::size_t begin = ByteOf(document, At(params, "range", "start"));
    const std::size_t end = ByteOf(document, At(params, "range", "end"));
    const std::int32_t firstLine = document.CheckedLineAt(begin) + 1;
    const std::int32_t lastLine = document.CheckedLineAt(end) + 1;
    Json actions = Json::array();
    for (const Finding& finding : document.GetFindings()) {
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

// Nothing that is wrong may be lost by it, so only a content without findings is written anew.
LanguageServer::Json LanguageServer::Formatting(const Json& params) {
    TextDocument& document = DocumentOf(params);
    if (!document.GetFindings().empty()) {
        return Json::array();
    }
    ContentConverter converter;
    if (converter.Convert(document.Kind(), FileOfUri(UriIn(params)), document.Text(), FileArchiveType::Text) !=
        ConversionResult::Converted) {
        return Json::array();
    }
    const SourceText written(converter.Bytes());
    const std::string text(written.Start(), written.End());
    if (text == document.Text()) {
        return Json::array();
    }
    return Json::array({{{"range", RangeOf(document, 0, document.Text().size())}, {"newText", text}}});
}

} // namespace Vorn
