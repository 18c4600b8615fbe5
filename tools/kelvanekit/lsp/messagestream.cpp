#include "tools/kelvanekit/lsp/messagestream.h"

#include "engine/string/ascii.h"

#include <algorithm>
#include <cerrno>
#include <charconv>

#ifdef _WIN32
#include <fcntl.h>
#include <io.h>
#else
#include <unistd.h>
#endif

namespace Vorn {

namespace {

using Json = nlohmann::json;

constexpr std::size_t kBlock = 65536;
constexpr std::size_t kMostHeader = 8192;
constexpr std::string_view kLengthField = "content-length:";

bool IsLengthField(std::string_view line) {
    return line.size() > kLengthField.size() &&
           std::equal(kLengthField.begin(), kLengthField.end(), line.begin(), [](char wanted, char given) {
               return wanted == (given >= 'A' && given <= 'Z' ? static_cast<char>(given - 'A' + 'a') : given);
           });
}

// The length that a header line gives.
std::optional<std::size_t> LengthIn(std::string_view line) {
    line.remove_prefix(std::min(line.find_first_not_of(" \t", kLengthField.size()), line.size()));
    std::size_t length = 0;
    const auto [end, error] = std::from_chars(line.data(), line.data() + line.size(), length);
    return error == std::errc() && end != line.data() ? std::optional(length) : std::nullopt;
}

std::string MethodOf(const Json& message) {
    const auto method = message.is_object() ? message.find("method") : message.end();
    return message.is_object() && method != message.end() && method->is_string() ? method->get<std::string>() : "";
}

} // namespace

bool MessageParser::Fill() {
    buffer.erase(0, place);
    place = 0;
    const std::size_t size = buffer.size();
    buffer.resize(size + kBlock);
    const std::size_t count = read(buffer.data() + size, kBlock);
    buffer.resize(size + count);
    return count > 0;
}

// A line without its end. One that is longer than any header comes in parts.
std::optional<std::string> MessageParser::NextLine() {
    std::size_t end = 0;
    while ((end = buffer.find('\n', place)) == std::string::npos && buffer.size() - place < kMostHeader) {
        if (!Fill()) {
            return std::nullopt;
        }
    }
    const bool isWhole = end != std::string::npos;
    end = isWhole ? end : buffer.size();
    std::string line = buffer.substr(place, end - place);
    place = end + (isWhole ? 1 : 0);
    if (line.ends_with('\r')) {
        line.pop_back();
    }
    return line;
}

std::optional<std::string> MessageParser::Next() {
    std::optional<std::size_t> length;
    bool hasHeader = false;
    for (;;) {
        const std::optional<std::string> line = NextLine();
        if (!line) {
            return std::nullopt;
        }
        if (IsLengthField(*line)) {
            length = LengthIn(*line);
        }
        hasHeader = hasHeader || !line->empty();
        if (line->empty() && hasHeader) {
            break;
        }
    }
    std::size_t missing = length.value_or(0);
    const bool isKept = missing <= kMostContent;
    std::string content;
    while (missing > 0) {
        if (place == buffer.size() && !Fill()) {
            return std::nullopt;
        }
        const std::size_t part = std::min(missing, buffer.size() - place);
        if (isKept) {
            content.append(buffer, place, part);
        }
        place += part;
        missing -= part;
    }
    return content;
}

MessageQueue::MessageQueue(ReadBytesFunction read) : parser(std::move(read)), reader([this] { ReadAll(); }) {}

MessageQueue::~MessageQueue() {
    {
        const std::lock_guard lock(mutex);
        isClosed = true;
    }
    changed.notify_all();
    reader.join();
}

bool MessageQueue::HasNext() {
    const std::lock_guard lock(mutex);
    return !queue.empty();
}

std::optional<ClientMessage> MessageQueue::Next() {
    std::unique_lock lock(mutex);
    changed.wait(lock, [&] { return !queue.empty() || isAtEnd; });
    if (queue.empty()) {
        return std::nullopt;
    }
    ClientMessage message = std::move(queue.front().message);
    waitingBytes -= queue.front().size;
    queue.pop_front();
    changed.notify_all();
    return message;
}

// Ends at the client's "exit", so that nobody waits for input that never comes.
void MessageQueue::ReadAll() {
    bool goesOn = true;
    while (goesOn) {
        const std::optional<std::string> content = parser.Next();
        if (!content) {
            break;
        }
        Waiting waiting = {{Json::parse(*content, nullptr, false)}, content->size()};
        goesOn = MethodOf(waiting.message.json) != "exit";
        Add(std::move(waiting));
        const std::lock_guard lock(mutex);
        goesOn = goesOn && !isClosed;
    }
    const std::lock_guard lock(mutex);
    isAtEnd = true;
    changed.notify_all();
}

void MessageQueue::Add(Waiting waiting) {
    std::unique_lock lock(mutex);
    if (MethodOf(waiting.message.json) == "$/cancelRequest") {
        const Json& params = waiting.message.json.value("params", Json());
        const Json id = params.is_object() ? params.value("id", Json()) : Json();
        for (Waiting& other : queue) {
            const Json& request = other.message.json;
            if (!id.is_null() && request.is_object() && request.contains("method") &&
                request.value("id", Json()) == id) {
                other.message.isCancelled = true;
            }
        }
        return;
    }
    changed.wait(lock, [&] { return isClosed || queue.empty() || waitingBytes + waiting.size <= kMostWaiting; });
    waitingBytes += waiting.size;
    queue.push_back(std::move(waiting));
    changed.notify_all();
}

std::size_t ReadStandardInput(char* bytes, std::size_t count) {
#ifdef _WIN32
    _setmode(0, _O_BINARY);
    return static_cast<std::size_t>(std::max(_read(0, bytes, static_cast<unsigned>(count)), 0));
#else
    ssize_t got = 0;
    do {
        got = read(0, bytes, count);
    } while (got < 0 && errno == EINTR);
    return static_cast<std::size_t>(std::max<ssize_t>(got, 0));
#endif
}

void SendMessageTo(OutputStream& output, const Json& message) {
    const std::string content = message.dump(-1, ' ', false, Json::error_handler_t::replace);
    output.Write("Content-Length: " + std::to_string(content.size()) + "\r\n\r\n");
    output.Write(content);
    output.Flush();
}

} // namespace Vorn
