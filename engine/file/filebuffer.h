#pragma once

#include "engine/file/nativefile.h"

#include <cstring>
#include <memory>

namespace Vorn {

// The block of memory between a file and its user. Reading fills it, writing empties it, in blocks of kFileBlock bytes.
inline constexpr std::size_t kFileBlock = 65536;

// The buffered bytes of a file that is read.
class ReadBuffer {
public:
    // Bytes that may be looked at behind the last one; the first of them is 0.
    static constexpr std::size_t kSlack = 96;

    explicit ReadBuffer(NativeFile& _file) : file(_file), block(new unsigned char[kFileBlock + kSlack]) {
        block[0] = 0;
    }

    std::size_t Available() const { return static_cast<std::size_t>(end - cursor); }
    const unsigned char* Cursor() const { return cursor; }
    void Skip(std::size_t count) { cursor += count; }

    // Tries to make `count` bytes available, at most kFileBlock; fewer are there only at the end of the file.
    bool Ensure(std::size_t count) { return Available() >= count || Fill(count); }

    // Copies up to `count` bytes out and returns how many there were.
    std::size_t Take(void* bytes, std::size_t count);

    // A read of the platform failed; the file counts as ended there.
    bool HasFailed() const { return failed; }

private:
    bool Fill(std::size_t count);

    NativeFile& file;
    std::unique_ptr<unsigned char[]> block;
    const unsigned char* cursor = block.get();
    const unsigned char* end = block.get();
    std::size_t nextRead = kFirstRead;
    bool ended = false;
    bool failed = false;

    // The form of a file is told from its first bytes, and most content files are small.
    static constexpr std::size_t kFirstRead = 8192;
};

// The buffered bytes of a file that is written.
class WriteBuffer {
public:
    explicit WriteBuffer(NativeFile& _file) : file(_file), block(new unsigned char[kFileBlock]) {}

    // False if a block could not be written; its bytes are lost then.
    bool Put(const void* bytes, std::size_t count) {
        if (count > Room()) {
            return PutLarge(bytes, count);
        }
        std::memcpy(cursor, bytes, count);
        cursor += count;
        return true;
    }

    // A place for `count` bytes, at most kFileBlock, and how many of them were then used.
    char* Reserve(std::size_t count, bool& written) {
        written = count <= Room() || Flush();
        return reinterpret_cast<char*>(cursor);
    }
    void Commit(const char* usedEnd) { cursor = block.get() + (usedEnd - reinterpret_cast<char*>(block.get())); }

    bool Flush();

private:
    std::size_t Room() const { return kFileBlock - static_cast<std::size_t>(cursor - block.get()); }
    bool PutLarge(const void* bytes, std::size_t count);

    NativeFile& file;
    std::unique_ptr<unsigned char[]> block;
    unsigned char* cursor = block.get();
};

} // namespace Vorn
