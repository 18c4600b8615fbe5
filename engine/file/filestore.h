#pragma once

#include <cstddef>
#include <memory>
#include <string_view>

namespace Vorn {

enum class FileAccess { Read = 0, Write = 1 };

// The bytes of an open file, unbuffered. Destroying it closes it.
class ByteStream {
public:
    ByteStream() = default;
    ByteStream(const ByteStream&) = delete;
    ByteStream& operator=(const ByteStream&) = delete;
    virtual ~ByteStream() = default;

    // The bytes read, 0 at the end of the file, -1 for a failure.
    virtual std::ptrdiff_t Read(void* bytes, std::size_t count) = 0;

    // False if not all bytes could be written.
    virtual bool Write(const void* bytes, std::size_t count) = 0;

    // True if there is nothing to close or closing did not fail.
    virtual bool Close() = 0;

    // The bytes that there are to read; 0 where that is not known.
    virtual std::uint64_t GetSize() const { return 0; }

    // Some platforms can open a directory for reading; only reads fail.
    virtual bool IsDirectory() const { return false; }
};

// The files of a FileSystem: those of the platform, or files in memory.
class FileStore {
public:
    virtual ~FileStore() = default;

    // Opens for reading, or truncates or creates for writing; null if that fails.
    virtual std::unique_ptr<ByteStream> Open(std::u16string_view name, FileAccess access) = 0;

    // Whether a file of that name exists; a directory is none.
    virtual bool Exists(std::u16string_view name) const = 0;
};

} // namespace Vorn
