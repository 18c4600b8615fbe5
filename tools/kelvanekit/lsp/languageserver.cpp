#include "tools/kelvanekit/lsp/languageserver.h"

#include "tools/kelvanekit/fileuri.h"
#include "tools/kelvanekit/lsp/fieldreference.h"
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

std::optional<std::int32_t> VersionIn(const Json& params) {
    const Json version = params.at("textDocument").value("version", Json());
    return version.is_number_integer() ? std::optional(version.get<std::int32_t>()) : std::nullopt;
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
    {"textDocument/didSave", &LanguageServer::DidSave},
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

std::string LanguageServer::UriIn(const Json& params) {
    return At(params, "textDocument", "uri").get<std::string>();
}

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
    watchesFiles =
        capabilities.value("/workspace/didChangeWatchedFiles/dynamicRegistration"_json_pointer, Json(false)) == true;
    const Json options = params.value("initializationOptions", Json());
    looksUpNames = !options.is_object() || options.value("names", Json(true)) != false;
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
              {"textDocumentSync", {{"openClose", true}, {"change", 2}, {"save", true}}},
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
    if (watchesFiles) {
        std::string endings;
        for (const ContentKindRow& row : ContentKinds()) {
            endings += (endings.empty() ? "" : ",") + std::string(row.ending.substr(1));
        }
        const char* const method = "workspace/didChangeWatchedFiles";
        const Json watchers = Json::array({{{"globPattern", "**/*.{" + endings + '}'}}});
        const Json registration = {{"id", method}, {"method", method}, {"registerOptions", {{"watchers", watchers}}}};
        send({{"jsonrpc", "2.0"},
              {"id", method},
              {"method", "client/registerCapability"},
              {"params", {{"registrations", Json::array({registration})}}}});
    }
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
        TextDocument document(*kind, At(params, "textDocument", "text").get<std::string>());
        document.SetVersion(VersionIn(params));
        documents.insert_or_assign(uri, std::move(document));
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
    document.SetVersion(VersionIn(params));
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

// Not every client watches files.
LanguageServer::Json LanguageServer::DidSave(const Json& params) {
    return DidChangeFiles(params);
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
        if (looksUpNames) {
            for (auto& [uri, document] : documents) {
                document.ForgetFindings();
                changed.insert(uri);
            }
        }
    }
    return index;
}

// A large workspace shows what is wrong in a document before its names are known.
void LanguageServer::PublishChanged() {
    Publish();
    if (!documents.empty()) {
        if (looksUpNames) {
            Index();
            Publish();
        }
        PrepareReference();
    }
}

void LanguageServer::Publish() {
    for (const std::string& uri : std::exchange(changed, {})) {
        TextDocument& document = documents.at(uri);
        Json params = {{"uri", uri}, {"diagnostics", Diagnostics(uri, document)}};
        if (const std::optional<std::int32_t> version = document.Version()) {
            params["version"] = *version;
        }
        send({{"jsonrpc", "2.0"}, {"method", "textDocument/publishDiagnostics"}, {"params", std::move(params)}});
    }
}

// The workspace says nothing of the names in a document from elsewhere.
const Findings& LanguageServer::FindingsOf(const std::string& uri, TextDocument& document) {
    const std::string file = FileOfUri(uri);
    const bool isInside = std::ranges::any_of(folders, [&](const std::string& folder) {
        return file.starts_with(folder) && (folder.ends_with('/') || file[folder.size()] == '/');
    });
    return document.GetFindings(looksUpNames && isInside ? &index.Names() : nullptr);
}

LanguageServer::Json LanguageServer::Diagnostics(const std::string& uri, TextDocument& document) {
    Json diagnostics = Json::array();
    for (const Finding& finding : FindingsOf(uri, document)) {
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

} // namespace Vorn
