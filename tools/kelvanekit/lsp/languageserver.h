#pragma once

#include "tools/kelvanekit/lsp/textdocument.h"
#include "tools/kelvanekit/lsp/workspaceindex.h"

#include <nlohmann/json.hpp>

#include <functional>
#include <map>
#include <set>
#include <string>

namespace Vorn {

// The language server of content files: the Language Server Protocol 3.17 without its transport. Messages may come in
// any order and with any content; each request gets one answer.
class LanguageServer {
public:
    using Json = nlohmann::json;
    using Send = std::function<void(const Json& message)>;

    explicit LanguageServer(Send _send) : send(std::move(_send)) {}

    // Handles a message; one that is no JSON comes as a discarded value.
    void Handle(const Json& message, bool isCancelled = false);

    // Publishes what is due, and gets ready for requests to come. To be called when no message is waiting, so that
    // quick typing is not checked key by key.
    void PublishChanged();

    // The client has asked for the end. The status is 0 if it asked for a shutdown before.
    bool HasEnded() const { return hasEnded; }
    int ExitStatus() const { return isShutDown ? 0 : 1; }

private:
    // An error as an answer.
    struct Failure {
        int code;
        std::string message;
    };
    using Handler = Json (LanguageServer::*)(const Json& params);
    struct Method {
        const char* name;
        Handler handle;
    };
    static const Method kMethods[];

    Json Call(const std::string& method, const Json& params);
    void Answer(const Json& id, const char* member, Json content);

    Json Initialize(const Json& params);
    Json Initialized(const Json& params);
    Json Shutdown(const Json& params);
    Json Exit(const Json& params);
    Json DidOpen(const Json& params);
    Json DidChange(const Json& params);
    Json DidClose(const Json& params);
    Json DidSave(const Json& params);
    Json DidChangeFiles(const Json& params);
    Json DidChangeFolders(const Json& params);
    Json Complete(const Json& params);
    Json Hover(const Json& params);
    Json Definition(const Json& params);
    Json References(const Json& params);
    Json DocumentSymbols(const Json& params);
    Json Foldings(const Json& params);
    Json WorkspaceSymbols(const Json& params);
    Json CodeActions(const Json& params);
    Json Formatting(const Json& params);

    static std::string UriIn(const Json& params);
    TextDocument& DocumentOf(const Json& params);
    const WorkspaceIndex& Index();
    void Publish();
    const Findings& FindingsOf(const std::string& uri, TextDocument& document);
    Json Diagnostics(const std::string& uri, TextDocument& document);
    Json RangeOf(const TextDocument& document, std::size_t begin, std::size_t end) const;
    Json RangeOf(const TextDocument& document, const FindingPlace& place) const;
    std::size_t ByteOf(const TextDocument& document, const Json& position) const;
    // Contents that are looked into for one request, by their URIs.
    using Contents = std::map<std::string, TextDocument>;
    TextDocument& ContentOf(const SourceFile& file, Contents& contents);
    Json LocationOf(NameKind kind, std::u16string_view name, const SourceFile& file, Contents& contents);

    const Send send;
    PositionUnits units = PositionUnits::Utf16;
    bool isInitialized = false;
    bool isShutDown = false;
    bool hasEnded = false;
    bool hasSnippets = false;
    bool watchesFiles = false;
    bool looksUpNames = true;
    // By their URIs.
    std::map<std::string, TextDocument> documents;
    std::set<std::string> changed;
    std::vector<std::string> folders;
    WorkspaceIndex index;
    bool isIndexed = false;
};

} // namespace Vorn
