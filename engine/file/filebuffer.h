#pragma once

#include "engine/file/filestore.h"

#include <cstring>
#include <memory>

namespace Vorn {

// Files are read and written in blocks of this many bytes.
inline constexpr std::size_t kFileBlock = 65536;

// The buffer of a file that is read. Before Open it acts as the buffer of an empty file.
class ReadBuffer {
public:
    // Bytes that may be read after the last one; the first of them is 0.
    static constexpr std::size_t kSlack = 96;

    void Open(ByteStream& _file);

    std::size_t Available() const { return static_cast<std::size_t>(end - cursor); }
    const unsigned char* Cursor() const { return cursor; }
    void Skip(std::size_t count) { cursor += count; }
    void SkipTo(const unsigned char* place) { cursor = place; }

    // Tries to make `count` bytes available, at most kFileBlock; there are fewer only at the end of the file.
    bool Ensure(std::size_t count) { return Available() >= count || Fill(count); }

    // Copies up to `count` bytes out and returns how many there were.
    std::size_t Take(void* bytes, std::size_t count);

    // The bytes that were read from the file so far.
    std::uint64_t BytesGiven() const { return given; }

    // Whether a read of the platform failed; this counts as the end of the file.
    bool HasFailed() const { return failed; }

private:
    bool Fill(std::size_t count);

    static constexpr unsigned char kNothing[kSlack] = {};

    ByteStream* file = nullptr;
    std::unique_ptr<unsigned char[]> block;
    const unsigned char* cursor = kNothing;
    const unsigned char* end = kNothing;
    std::size_t nextRead = kFirstRead;
    std::uint64_t given = 0;
    bool ended = true;
    bool failed = false;

    // The form of a file is detected from its first bytes, and most content files are small.
    static constexpr std::size_t kFirstRead = 8192;
};

// The buffer of a file that is written. Before Open it has no room, and every write fails.
class WriteBuffer {
public:
    void Open(ByteStream& _file);
    bool IsOpen() const { return block != nullptr; }

    // False if a block could not be written; its bytes are lost then.
    bool Put(const void* bytes, std::size_t count) {
        if (count >= Room()) [[unlikely]] {
            return PutLarge(bytes, count);
        }
        std::memcpy(cursor, bytes, count);
        cursor += count;
        return true;
    }

    std::size_t Room() const { return static_cast<std::size_t>(end - cursor); }

    // Reserve returns a place for `count` bytes, at most kFileBlock; Commit ends what was written there.
    char* Reserve(std::size_t count, bool& written) {
        written = count <= Room() || Flush();
        return cursor;
    }
    char* Cursor() { return cursor; }
    void Commit(char* usedEnd) { cursor = usedEnd; }

    bool Flush();

private:
    bool PutLarge(const void* bytes, std::size_t count);

    ByteStream* file = nullptr;
    std::unique_ptr<char[]> block;
    char* cursor = nullptr;
    char* end = nullptr;
};

} // namespace Vorn
