#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace Vorn {

enum class FileAccess { Read = 0, Write = 1 };

// An open file of the platform, unbuffered, bytes as they are. The only class that knows how files are opened.
class NativeFile {
public:
    NativeFile() = default;
    NativeFile(const NativeFile&) = delete;
    NativeFile& operator=(const NativeFile&) = delete;
    ~NativeFile() { Close(); }

    // Opens for reading, or truncates or creates for writing. The name goes to the platform as it stands.
    bool Open(std::u16string_view name, FileAccess access);

    // Some platforms open a directory for reading, and only its reads fail.
    bool IsDirectory() const;

    // True if there is nothing to close or the platform closed without a failure.
    bool Close();

    // The bytes read, 0 at the end of the file, -1 for a failure.
    std::ptrdiff_t Read(void* bytes, std::size_t count);

    // False if not all bytes could be written.
    bool Write(const void* bytes, std::size_t count);

    // Moves the place of the next access; past the end is allowed.
    bool Seek(long long position);

private:
    static constexpr int kNone = -1;

    int descriptor = kNone;
};

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
