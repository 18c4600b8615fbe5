#include "engine/file/nativefile.h"

#include "engine/core/debugoutput.h"
#include "engine/string/utf8.h"

#include <algorithm>
#include <cerrno>
#include <fcntl.h>
#include <sys/stat.h>
#include <utility>

#ifdef _WIN32
#include <io.h>
#include <windows.h>
#else
#include <dirent.h>
#include <unistd.h>
#endif

namespace Vorn {

namespace {

constexpr std::size_t kMaxTransfer = std::size_t{1} << 30;

#ifdef _WIN32

int OpenDescriptor(std::u16string_view name, FileAccess access) {
    const std::wstring path(name.begin(), name.end());
    const int flags = access == FileAccess::Read ? _O_RDONLY : _O_WRONLY | _O_CREAT | _O_TRUNC;
    return _wopen(path.c_str(), flags | _O_BINARY | _O_NOINHERIT, _S_IREAD | _S_IWRITE);
}

std::ptrdiff_t ReadSome(int descriptor, void* bytes, std::size_t count) {
    return _read(descriptor, bytes, static_cast<unsigned>(count));
}

std::ptrdiff_t WriteSome(int descriptor, const void* bytes, std::size_t count) {
    return _write(descriptor, bytes, static_cast<unsigned>(count));
}

bool SeekTo(int descriptor, long long position) {
    return _lseeki64(descriptor, position, SEEK_SET) >= 0;
}

bool IsDirectoryDescriptor(int) {
    return false;
}

std::uint64_t SizeOf(int descriptor) {
    struct _stat64 status = {};
    const bool hasSize = _fstat64(descriptor, &status) == 0 && (status.st_mode & _S_IFREG) != 0;
    return hasSize ? static_cast<std::uint64_t>(status.st_size) : 0;
}

bool CloseDescriptor(int descriptor) {
    return _close(descriptor) == 0;
}

// Calls `take` with the name of each folder in a folder, except links.
template <class Take>
void ForEachSubfolder(std::u16string_view folder, Take take) {
    std::wstring pattern(folder.begin(), folder.end());
    pattern += L"\\*";
    WIN32_FIND_DATAW found;
    const HANDLE search = FindFirstFileW(pattern.c_str(), &found);
    if (search == INVALID_HANDLE_VALUE) {
        return;
    }
    do {
        constexpr DWORD kKind = FILE_ATTRIBUTE_DIRECTORY | FILE_ATTRIBUTE_REPARSE_POINT;
        if ((found.dwFileAttributes & kKind) == FILE_ATTRIBUTE_DIRECTORY) {
            const std::wstring_view name = found.cFileName;
            take(std::u16string(name.begin(), name.end()));
        }
    } while (FindNextFileW(search, &found));
    FindClose(search);
}

#else

int OpenDescriptor(std::u16string_view name, FileAccess access) {
    const int flags = access == FileAccess::Read ? O_RDONLY : O_WRONLY | O_CREAT | O_TRUNC;
    return open(BytesFromName(name).c_str(), flags | O_CLOEXEC, 0666);
}

template <class Transfer>
std::ptrdiff_t Uninterrupted(Transfer transfer) {
    std::ptrdiff_t result = 0;
    do {
        result = transfer();
    } while (result < 0 && errno == EINTR);
    return result;
}

std::ptrdiff_t ReadSome(int descriptor, void* bytes, std::size_t count) {
    return Uninterrupted([&] { return read(descriptor, bytes, count); });
}

std::ptrdiff_t WriteSome(int descriptor, const void* bytes, std::size_t count) {
    return Uninterrupted([&] { return write(descriptor, bytes, count); });
}

bool SeekTo(int descriptor, long long position) {
    return lseek(descriptor, position, SEEK_SET) >= 0;
}

bool IsDirectoryDescriptor(int descriptor) {
    struct stat status = {};
    return fstat(descriptor, &status) == 0 && S_ISDIR(status.st_mode);
}

std::uint64_t SizeOf(int descriptor) {
    struct stat status = {};
    const bool hasSize = fstat(descriptor, &status) == 0 && S_ISREG(status.st_mode);
    return hasSize ? static_cast<std::uint64_t>(status.st_size) : 0;
}

bool CloseDescriptor(int descriptor) {
    return close(descriptor) == 0;
}

// Calls `take` with the name of each folder in a folder, except links.
template <class Take>
void ForEachSubfolder(std::u16string_view folder, Take take) {
    DIR* listing = opendir(BytesFromName(folder).c_str());
    if (listing == nullptr) {
        return;
    }
    while (const dirent* entry = readdir(listing)) {
        struct stat status = {};
        if (fstatat(dirfd(listing), entry->d_name, &status, AT_SYMLINK_NOFOLLOW) == 0 && S_ISDIR(status.st_mode)) {
            take(NameFromBytes(entry->d_name));
        }
    }
    closedir(listing);
}

#endif

class NativeFileStore final : public FileStore {
public:
    std::unique_ptr<ByteStream> Open(std::u16string_view name, FileAccess access) override {
        auto file = std::make_unique<NativeFile>();
        return file->Open(name, access) ? std::move(file) : nullptr;
    }

    bool Exists(std::u16string_view name) const override { return IsExistingFile(name); }
};

} // namespace

bool NativeFile::Open(std::u16string_view name, FileAccess access) {
    Close();
    FlushDebugOutput();
    descriptor = OpenDescriptor(name, access);
    return descriptor != kNone;
}

std::uint64_t NativeFile::GetSize() const {
    return SizeOf(descriptor);
}

bool NativeFile::IsDirectory() const {
    return IsDirectoryDescriptor(descriptor);
}

bool NativeFile::Close() {
    if (descriptor == kNone) {
        return true;
    }
    const bool closed = CloseDescriptor(descriptor);
    descriptor = kNone;
    return closed;
}

std::ptrdiff_t NativeFile::Read(void* bytes, std::size_t count) {
    FlushDebugOutput();
    return ReadSome(descriptor, bytes, std::min(count, kMaxTransfer));
}

bool NativeFile::Write(const void* bytes, std::size_t count) {
    FlushDebugOutput();
    const char* cursor = static_cast<const char*>(bytes);
    while (count > 0) {
        const std::ptrdiff_t written = WriteSome(descriptor, cursor, std::min(count, kMaxTransfer));
        if (written <= 0) {
            return false;
        }
        cursor += written;
        count -= static_cast<std::size_t>(written);
    }
    return true;
}

bool NativeFile::Seek(long long position) {
    return SeekTo(descriptor, position);
}

FileStore& NativeFiles() {
    static NativeFileStore store;
    return store;
}

bool MakeWritable(std::u16string_view name) {
#ifdef _WIN32
    return _wchmod(std::wstring(name.begin(), name.end()).c_str(), _S_IREAD | _S_IWRITE) == 0;
#else
    const std::string path = BytesFromName(name);
    struct stat status = {};
    return stat(path.c_str(), &status) == 0 && chmod(path.c_str(), status.st_mode | S_IWUSR) == 0;
#endif
}

bool IsExistingFile(std::u16string_view name) {
#ifdef _WIN32
    struct _stat64 status = {};
    return _wstat64(std::wstring(name.begin(), name.end()).c_str(), &status) == 0 && (status.st_mode & _S_IFDIR) == 0;
#else
    struct stat status = {};
    return stat(BytesFromName(name).c_str(), &status) == 0 && !S_ISDIR(status.st_mode);
#endif
}

std::vector<std::u16string> SubfoldersOf(std::u16string_view folder) {
    std::vector<std::u16string> names;
    ForEachSubfolder(folder, [&](std::u16string name) {
        if (name != u"." && name != u"..") {
            names.push_back(std::move(name));
        }
    });
    std::sort(names.begin(), names.end());
    return names;
}

} // namespace Vorn
