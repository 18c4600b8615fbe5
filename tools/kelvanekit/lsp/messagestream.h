#pragma once

#include "tools/kelvanekit/outputstream.h"

#include <nlohmann/json.hpp>

#include <condition_variable>
#include <cstddef>
#include <deque>
#include <functional>
#include <mutex>
#include <optional>
#include <string>
#include <thread>

namespace Vorn {

// Where the bytes of a client come from: as many as there are, at most `count`; 0 at the end.
using ReadBytesFunction = std::function<std::size_t(char* bytes, std::size_t count)>;

// Takes the messages of the base protocol apart: header lines, an empty line, and the content.
class MessageParser {
public:
    explicit MessageParser(ReadBytesFunction _read) : read(std::move(_read)) {}

    // The content of the next message; nothing at the end of the input. One without a length, or longer than
    // kMostContent, comes as an empty text, and its bytes are passed over.
    std::optional<std::string> Next();

    static constexpr std::size_t kMostContent = std::size_t{256} << 20;

private:
    bool Fill();
    std::optional<std::string> NextLine();

    const ReadBytesFunction read;
    std::string buffer;
    std::size_t place = 0;
};

// A message of the client, or what stands for one that cannot be understood.
struct ClientMessage {
    nlohmann::json json;
    bool isCancelled = false;
};

// Reads messages ahead while others are being handled, so that requests can be cancelled before it is their turn.
class MessageQueue {
public:
    explicit MessageQueue(ReadBytesFunction read);
    MessageQueue(const MessageQueue&) = delete;
    MessageQueue& operator=(const MessageQueue&) = delete;
    ~MessageQueue();

    // Whether a message is there without waiting.
    bool HasNext();
    // Waits for a message; nothing at the end of the input.
    std::optional<ClientMessage> Next();

private:
    struct Waiting {
        ClientMessage message;
        std::size_t size;
    };

    // So many bytes of messages wait at most, or a single longer one.
    static constexpr std::size_t kMostWaiting = std::size_t{64} << 20;

    void ReadAll();
    void Add(Waiting waiting);

    MessageParser parser;
    std::mutex mutex;
    std::condition_variable changed;
    std::deque<Waiting> queue;
    std::size_t waitingBytes = 0;
    bool isAtEnd = false;
    bool isClosed = false;
    std::thread reader;
};

// Reads standard input as bytes.
std::size_t ReadStandardInput(char* bytes, std::size_t count);

// Writes a message with its header.
void SendMessageTo(OutputStream& output, const nlohmann::json& message);

} // namespace Vorn
