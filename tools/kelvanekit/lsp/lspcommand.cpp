#include "tools/kelvanekit/command.h"
#include "tools/kelvanekit/lsp/languageserver.h"
#include "tools/kelvanekit/lsp/messagestream.h"

#include <CLI/CLI.hpp>

namespace Vorn {

CommandRun DeclareLsp(CLI::App& app) {
    app.footer("An editor starts this and talks to it over standard input and output.");
    return [](OutputStream& output, OutputStream&) {
        LanguageServer server([&](const LanguageServer::Json& message) { SendMessageTo(output, message); });
        MessageQueue queue(ReadStandardInput);
        while (!server.HasEnded()) {
            if (!queue.HasNext()) {
                server.PublishChanged();
            }
            const std::optional<ClientMessage> message = queue.Next();
            if (!message || output.HasFailed()) {
                break;
            }
            server.Handle(message->json, message->isCancelled);
        }
        return server.ExitStatus();
    };
}

} // namespace Vorn
