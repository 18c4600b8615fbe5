#include "tools/kelvanekit/destination.h"
#include "tools/kelvanekit/filename.h"

#include <algorithm>
#include <chrono>
#include <optional>
#include <system_error>
#include <thread>
#include <utility>
#include <vector>

#include <windows.h>

namespace Vorn {

namespace {

namespace fs = std::filesystem;
using namespace std::chrono_literals;

constexpr auto kPatience = 30s;
constexpr DWORD kShareAll = FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE;

[[noreturn]] void Fail(DWORD error = GetLastError()) {
    throw std::system_error(static_cast<int>(error), std::system_category());
}

void FailUnless(bool done) {
    if (!done) {
        Fail();
    }
}

class Handle {
public:
    explicit Handle(HANDLE _handle = INVALID_HANDLE_VALUE) : handle(_handle) {}
    Handle(Handle&& other) noexcept : handle(std::exchange(other.handle, INVALID_HANDLE_VALUE)) {}
    Handle& operator=(Handle&& other) noexcept {
        std::swap(handle, other.handle);
        return *this;
    }
    ~Handle() {
        if (IsOpen()) {
            CloseHandle(handle);
        }
    }

    bool IsOpen() const { return handle != INVALID_HANDLE_VALUE; }
    HANDLE Get() const { return handle; }

private:
    HANDLE handle;
};

Handle OpenFile(const fs::path& path, DWORD access, DWORD share, DWORD creation) {
    return Handle(CreateFileW(path.c_str(), access, share, nullptr, creation, FILE_ATTRIBUTE_NORMAL, nullptr));
}

void WriteAll(const Handle& file, std::string_view bytes) {
    constexpr std::size_t kMaxTransfer = std::size_t{1} << 30;
    while (!bytes.empty()) {
        DWORD count = 0;
        const auto wanted = static_cast<DWORD>(std::min(bytes.size(), kMaxTransfer));
        FailUnless(WriteFile(file.Get(), bytes.data(), wanted, &count, nullptr) != 0 && count > 0);
        bytes.remove_prefix(count);
    }
}

bool Holds(const Handle& file, std::string_view bytes) {
    LARGE_INTEGER size = {};
    if (GetFileSizeEx(file.Get(), &size) == 0 || size.QuadPart != static_cast<LONGLONG>(bytes.size())) {
        return false;
    }
    char block[16384];
    while (!bytes.empty()) {
        DWORD count = 0;
        const auto wanted = static_cast<DWORD>(std::min(bytes.size(), sizeof block));
        if (ReadFile(file.Get(), block, wanted, &count, nullptr) == 0 || count == 0 ||
            !bytes.starts_with(std::string_view(block, count))) {
            return false;
        }
        bytes.remove_prefix(count);
    }
    return true;
}

void Touch(const Handle& file) {
    FILETIME now = {};
    GetSystemTimeAsFileTime(&now);
    FailUnless(SetFileTime(file.Get(), nullptr, nullptr, &now) != 0);
}

// Whoever may use the old file may do so with the new one. Permissions that cannot be read stay those of the folder.
void TakeOverPermissions(const fs::path& path, const fs::path& oldPath) {
    constexpr SECURITY_INFORMATION kWhat = DACL_SECURITY_INFORMATION;
    DWORD size = 0;
    GetFileSecurityW(oldPath.c_str(), kWhat, nullptr, 0, &size);
    std::vector<char> security(size);
    if (size > 0 && GetFileSecurityW(oldPath.c_str(), kWhat, security.data(), size, &size) != 0) {
        SetFileSecurityW(path.c_str(), kWhat, security.data());
    }
}

// The file that becomes the destination, which nobody else can open meanwhile. Gone unless it took its place.
class TemporaryFile {
public:
    TemporaryFile(const fs::path& destination)
        : path(destination.parent_path() / (L".kelvane-kit-" + destination.filename().wstring())) {
        const auto end = std::chrono::steady_clock::now() + kPatience;
        while (!TryCreate()) {
            // One that is not open was left by a run that was killed.
            if (DeleteFileW(path.c_str()) == 0 && GetLastError() != ERROR_FILE_NOT_FOUND) {
                if (GetLastError() != ERROR_SHARING_VIOLATION || std::chrono::steady_clock::now() > end) {
                    Fail();
                }
                std::this_thread::sleep_for(5ms);
            }
        }
    }
    TemporaryFile(const TemporaryFile&) = delete;
    TemporaryFile& operator=(const TemporaryFile&) = delete;
    ~TemporaryFile() {
        if (file.IsOpen()) {
            FILE_DISPOSITION_INFO remove = {TRUE};
            SetFileInformationByHandle(file.Get(), FileDispositionInfo, &remove, sizeof remove);
        }
    }

    const Handle& File() const { return file; }
    const fs::path& Path() const { return path; }

    // While the file is open, so that it cannot be taken for a stale one.
    void Replace(const fs::path& destination) {
        const std::wstring name = fs::absolute(destination).wstring();
        const std::size_t size = sizeof(FILE_RENAME_INFO) + name.size() * sizeof(wchar_t);
        std::vector<char> buffer(size);
        auto* rename = reinterpret_cast<FILE_RENAME_INFO*>(buffer.data());
        rename->ReplaceIfExists = TRUE;
        rename->FileNameLength = static_cast<DWORD>(name.size() * sizeof(wchar_t));
        std::copy(name.begin(), name.end(), rename->FileName);
        FailUnless(SetFileInformationByHandle(file.Get(), FileRenameInfo, rename, static_cast<DWORD>(size)) != 0);
        file = Handle();
    }

private:
    bool TryCreate() {
        file = OpenFile(path, GENERIC_WRITE | DELETE, 0, CREATE_NEW);
        if (file.IsOpen()) {
            return true;
        }
        const DWORD error = GetLastError();
        if (error != ERROR_FILE_EXISTS && error != ERROR_SHARING_VIOLATION) {
            Fail(error);
        }
        return false;
    }

    const fs::path path;
    Handle file;
};

void Replace(const fs::path& path, std::string_view bytes, bool isOld, bool sync) {
    TemporaryFile temporary(path);
    WriteAll(temporary.File(), bytes);
    if (isOld) {
        TakeOverPermissions(temporary.Path(), path);
    }
    FailUnless(!sync || FlushFileBuffers(temporary.File().Get()) != 0);
    temporary.Replace(path);
}

void WriteFileAt(const fs::path& path, std::string_view bytes, const DestinationOptions& options) {
    Handle old = OpenFile(path, GENERIC_READ, kShareAll, OPEN_EXISTING);
    if (old.IsOpen() && GetFileType(old.Get()) != FILE_TYPE_DISK) {
        old = Handle();
        const Handle device = OpenFile(path, GENERIC_WRITE, kShareAll, OPEN_EXISTING);
        FailUnless(device.IsOpen());
        WriteAll(device, bytes);
        return;
    }
    const bool isSame = old.IsOpen() && Holds(old, bytes);
    const bool isOld = old.IsOpen();
    old = Handle();
    if (!isSame) {
        const DWORD attributes = GetFileAttributesW(path.c_str());
        if (attributes != INVALID_FILE_ATTRIBUTES &&
            (attributes & (FILE_ATTRIBUTE_READONLY | FILE_ATTRIBUTE_DIRECTORY)) != 0) {
            Fail(ERROR_ACCESS_DENIED);
        }
        Replace(path, bytes, isOld, options.sync);
    } else if (options.touch) {
        const Handle file = OpenFile(path, FILE_WRITE_ATTRIBUTES, kShareAll, OPEN_EXISTING);
        FailUnless(file.IsOpen());
        Touch(file);
    }
}

} // namespace

// Folders are not kept open here.
class DestinationWriter::Folder {};

DestinationWriter::DestinationWriter(const DestinationOptions& _options) : options(_options) {}

DestinationWriter::~DestinationWriter() = default;

std::string DestinationWriter::Write(const std::string& name, std::string_view bytes) try {
    fs::path path = PathOf(name);
    std::error_code error;
    if (fs::is_symlink(path, error)) {
        path = fs::weakly_canonical(path);
    }
    if (path.has_parent_path()) {
        fs::create_directories(path.parent_path());
    }
    WriteFileAt(path, bytes, options);
    return {};
} catch (const std::system_error& error) {
    return error.code().message();
}

std::string DestinationWriter::Finish() {
    return {};
}

} // namespace Vorn
