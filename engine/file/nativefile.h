#pragma once

#include "engine/file/filestore.h"

#include <string>
#include <string_view>
#include <vector>

namespace Vorn {

// An open file of the platform, unbuffered and binary. Only this class calls the platform for files. Opening, reading
// and writing may block for long, so that buffered reports are flushed before.
class NativeFile final : public ByteStream {
public:
    NativeFile() = default;
    ~NativeFile() override { Close(); }

    // Opens for reading, or truncates or creates for writing. The name is passed to the platform unchanged.
    bool Open(std::u16string_view name, FileAccess access);

    std::ptrdiff_t Read(void* bytes, std::size_t count) override;
    bool Write(const void* bytes, std::size_t count) override;
    bool Close() override;
    std::uint64_t GetSize() const override;
    bool IsDirectory() const override;

    // Sets the position of the next access, which may be past the end.
    bool Seek(long long position);

private:
    static constexpr int kNone = -1;

    int descriptor = kNone;
};

// The files of the platform.
FileStore& NativeFiles();

// Removes the write protection of a file; false if that fails or there is no such file.
bool MakeWritable(std::u16string_view name);

// Whether a file of that name exists, links followed; a directory is none.
bool IsExistingFile(std::u16string_view name);

// Separates folders in paths that the program builds.
#ifdef _WIN32
inline constexpr char16_t kPathSeparator = u'\\';
#else
inline constexpr char16_t kPathSeparator = u'/';
#endif

// The names of the folders in a folder, in ascending order of their units; links are left out. Empty for a folder that
// cannot be read.
std::vector<std::u16string> SubfoldersOf(std::u16string_view folder);

} // namespace Vorn
