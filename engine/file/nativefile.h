#pragma once

#include "engine/file/filestore.h"

#include <string>
#include <string_view>
#include <vector>

namespace Vorn {

// An open file of the platform, unbuffered, bytes as they are. The only class that knows how files are opened. Since
// opening, reading and writing may block for long, the reports that were made before are written first.
class NativeFile final : public ByteStream {
public:
    NativeFile() = default;
    ~NativeFile() override { Close(); }

    // Opens for reading, or truncates or creates for writing. The name goes to the platform as it stands.
    bool Open(std::u16string_view name, FileAccess access);

    std::ptrdiff_t Read(void* bytes, std::size_t count) override;
    bool Write(const void* bytes, std::size_t count) override;
    bool Close() override;
    std::uint64_t GetSize() const override;
    bool IsDirectory() const override;

    // Moves the place of the next access; past the end is allowed.
    bool Seek(long long position);

private:
    static constexpr int kNone = -1;

    int descriptor = kNone;
};

// The files of the platform.
FileStore& NativeFiles();

// Takes a file's protection against writing off; false if that fails or there is no such file.
bool MakeWritable(std::u16string_view name);

// Whether a file of that name exists, links followed; a directory is none.
bool IsExistingFile(std::u16string_view name);

// Between the folders of a path that the program makes itself.
#ifdef _WIN32
inline constexpr char16_t kPathSeparator = u'\\';
#else
inline constexpr char16_t kPathSeparator = u'/';
#endif

// The names of the folders in a folder, in ascending order of their units; links are left out. Empty for a folder that
// cannot be read.
std::vector<std::u16string> SubfoldersOf(std::u16string_view folder);

} // namespace Vorn
