#include "tools/kelvanekit/command.h"
#include "tools/kelvanekit/lsp/languageserver.h"
#include "tools/kelvanekit/lsp/messagestream.h"

#include <CLI/CLI.hpp>

#ifdef __GLIBC__
#include <malloc.h>
#endif

namespace Vorn {

namespace {

// A check of a large file needs again what the one before gave back. To get it from the system each time took half of
// the time of a file with mistakes.
void KeepFreedMemory() {
#ifdef __GLIBC__
    constexpr int kKept = 64 << 20;
    constexpr int kLargestBlock = 32 << 20;
    mallopt(M_TRIM_THRESHOLD, kKept);
    mallopt(M_MMAP_THRESHOLD, kLargestBlock);
#endif
}

} // namespace

CommandRun DeclareLsp(CLI::App& app) {
    app.footer("An editor starts this and talks to it over standard input and output.");
    return [](OutputStream& output, OutputStream&) {
        KeepFreedMemory();
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
