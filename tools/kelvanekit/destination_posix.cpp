#include "tools/kelvanekit/destination.h"

#include "tools/kelvanekit/namehash.h"

#include <algorithm>
#include <cerrno>
#include <chrono>
#include <climits>
#include <cstdint>
#include <cstring>
#include <fcntl.h>
#include <filesystem>
#include <optional>
#include <sys/file.h>
#include <sys/stat.h>
#include <system_error>
#include <thread>
#include <unistd.h>
#include <utility>

namespace Vorn {

namespace {

namespace fs = std::filesystem;
using namespace std::chrono_literals;

using FileStatus = struct stat;

constexpr mode_t kPermissions = 07777;
constexpr mode_t kNewMode = 0666;
constexpr int kMostLinks = 40;
constexpr auto kPatience = 30s;

#ifdef O_PATH
// A folder need not be readable for files to be made in it.
constexpr int kFolderFlags = O_PATH | O_DIRECTORY;
#else
constexpr int kFolderFlags = O_RDONLY | O_DIRECTORY;
#endif

[[noreturn]] void Fail(int error = errno) {
    throw std::system_error(error, std::generic_category());
}

void FailUnless(bool done) {
    if (!done) {
        Fail();
    }
}

template <class Call>
auto Uninterrupted(Call call) {
    auto result = call();
    while (result < 0 && errno == EINTR) {
        result = call();
    }
    return result;
}

class Descriptor {
public:
    explicit Descriptor(int _number = -1) : number(_number) {}
    Descriptor(Descriptor&& other) noexcept : number(std::exchange(other.number, -1)) {}
    Descriptor& operator=(Descriptor&& other) noexcept {
        std::swap(number, other.number);
        return *this;
    }
    ~Descriptor() {
        if (number >= 0) {
            close(number);
        }
    }

    bool IsOpen() const { return number >= 0; }
    int Number() const { return number; }

private:
    int number;
};

Descriptor OpenAt(int folder, const std::string& name, int flags, mode_t mode = 0) {
    return Descriptor(Uninterrupted([&] { return openat(folder, name.c_str(), flags | O_CLOEXEC, mode); }));
}

FileStatus StatusOf(const Descriptor& file) {
    FileStatus status = {};
    FailUnless(fstat(file.Number(), &status) == 0);
    return status;
}

bool IsSameFile(const FileStatus& left, const FileStatus& right) {
    return left.st_dev == right.st_dev && left.st_ino == right.st_ino;
}

void WriteAll(const Descriptor& file, std::string_view bytes) {
    while (!bytes.empty()) {
        const ssize_t count = Uninterrupted([&] { return write(file.Number(), bytes.data(), bytes.size()); });
        FailUnless(count > 0);
        bytes.remove_prefix(static_cast<std::size_t>(count));
    }
}

bool Holds(const Descriptor& file, const FileStatus& status, std::string_view bytes) {
    if (status.st_size != static_cast<off_t>(bytes.size())) {
        return false;
    }
    char block[16384];
    while (!bytes.empty()) {
        const std::size_t wanted = std::min(bytes.size(), sizeof block);
        const ssize_t count = Uninterrupted([&] { return read(file.Number(), block, wanted); });
        if (count <= 0 || std::memcmp(block, bytes.data(), static_cast<std::size_t>(count)) != 0) {
            return false;
        }
        bytes.remove_prefix(static_cast<std::size_t>(count));
    }
    return true;
}

// Some file systems tell only here that there was no room. A copy is closed, since the descriptor still holds the file.
void CloseCopy(const Descriptor& file) {
    const int copy = fcntl(file.Number(), F_DUPFD_CLOEXEC, 0);
    FailUnless(copy >= 0);
    FailUnless(close(copy) == 0 || errno == EINTR);
}

// Whoever may read and write the old file may do so with the new one.
void TakeOverPermissions(const Descriptor& file, const FileStatus& status, const FileStatus& old) {
    if (status.st_uid != old.st_uid || status.st_gid != old.st_gid) {
        // Only the superuser can give everything over; anyone else keeps what he has.
        [[maybe_unused]] const bool changed = fchown(file.Number(), old.st_uid, old.st_gid) == 0 ||
                                              fchown(file.Number(), static_cast<uid_t>(-1), old.st_gid) == 0;
    }
    FailUnless(fchmod(file.Number(), old.st_mode & kPermissions) == 0);
}

// The name of a destination's temporary file, which is no longer than any file system allows.
std::string TemporaryName(std::string_view leaf) {
    const std::uint64_t hash = HashOfName(leaf);
    std::string name = ".kelvane-kit-";
    for (int shift = 60; shift >= 0; shift -= 4) {
        name += "0123456789abcdef"[hash >> shift & 15];
    }
    return name;
}

// Waits a little longer each time, and gives up in the end.
class Patience {
public:
    void Wait() {
        if (std::chrono::steady_clock::now() > end) {
            Fail(EBUSY);
        }
        std::this_thread::sleep_for(pause);
        pause = std::min<std::chrono::milliseconds>(pause * 2, 50ms);
    }

private:
    const std::chrono::steady_clock::time_point end = std::chrono::steady_clock::now() + kPatience;
    std::chrono::milliseconds pause = 1ms;
};

enum class Lock { Taken, Held, Unsupported };

Lock TryLock(const Descriptor& file) {
    if (Uninterrupted([&] { return flock(file.Number(), LOCK_EX | LOCK_NB); }) == 0) {
        return Lock::Taken;
    }
    return errno == EWOULDBLOCK ? Lock::Held : Lock::Unsupported;
}

// A new locked file, which is removed unless it has taken the place of another.
class TemporaryFile {
public:
    TemporaryFile(int _folder, std::string_view leaf, mode_t mode) : folder(_folder), name(TemporaryName(leaf)) {
        Patience patience;
        while (!TryCreate(mode)) {
            if (!RemoveStale()) {
                patience.Wait();
            }
        }
    }
    TemporaryFile(const TemporaryFile&) = delete;
    TemporaryFile& operator=(const TemporaryFile&) = delete;
    ~TemporaryFile() {
        if (file.IsOpen()) {
            unlinkat(folder, name.c_str(), 0);
        }
    }

    const Descriptor& File() const { return file; }
    const FileStatus& Status() const { return status; }

    void Replace(const std::string& leaf) {
        FailUnless(renameat(folder, name.c_str(), folder, leaf.c_str()) == 0);
        file = Descriptor();
    }

private:
    // False if the file is there already, or if it was removed before it was locked.
    bool TryCreate(mode_t mode) {
        Descriptor created = OpenAt(folder, name, O_WRONLY | O_CREAT | O_EXCL, mode);
        if (!created.IsOpen()) {
            return errno == EEXIST ? false : (Fail(), false);
        }
        const Lock lock = TryLock(created);
        if (lock == Lock::Unsupported) {
            unlinkat(folder, name.c_str(), 0);
            name += '-' + std::to_string(getpid()) + '-' +
                    std::to_string(std::chrono::steady_clock::now().time_since_epoch().count());
            created = OpenAt(folder, name, O_WRONLY | O_CREAT | O_EXCL, mode);
            FailUnless(created.IsOpen());
        }
        status = StatusOf(created);
        if (lock == Lock::Held || status.st_nlink == 0) {
            return false;
        }
        file = std::move(created);
        return true;
    }

    // Removes a file that nobody holds the lock of. False if somebody does.
    bool RemoveStale() const {
        const Descriptor left = OpenAt(folder, name, O_RDONLY | O_NOFOLLOW | O_NONBLOCK);
        if (!left.IsOpen()) {
            return errno == ENOENT ? true : (Fail(), true);
        }
        if (TryLock(left) == Lock::Held) {
            return false;
        }
        // Another run may have removed this file before it was locked here, and have made a new one.
        FileStatus present = {};
        if (fstatat(folder, name.c_str(), &present, AT_SYMLINK_NOFOLLOW) == 0 && IsSameFile(present, StatusOf(left))) {
            unlinkat(folder, name.c_str(), 0);
        }
        return true;
    }

    const int folder;
    std::string name;
    Descriptor file;
    FileStatus status = {};
};

void SyncFolder(int folder, const char* name) {
    const Descriptor descriptor = OpenAt(folder, name, O_RDONLY | O_DIRECTORY);
    FailUnless(descriptor.IsOpen() && fsync(descriptor.Number()) == 0);
}

// Makes a folder and those above it that are missing.
void MakeFolders(const std::string& name, bool sync) {
    if (mkdir(name.c_str(), 0777) == 0) {
        if (sync) {
            SyncFolder(AT_FDCWD, (name + "/..").c_str());
        }
        return;
    }
    const std::size_t slash = name.find_last_of('/');
    if (errno == ENOENT && slash != std::string::npos && slash > 0) {
        MakeFolders(name.substr(0, slash), sync);
        FailUnless(mkdir(name.c_str(), 0777) == 0 || errno == EEXIST);
        return;
    }
    FailUnless(errno == EEXIST);
}

} // namespace

// An open folder, in which files are written by their last names.
class DestinationWriter::Folder {
public:
    Folder(const std::string& _name, const DestinationOptions& _options) : name(_name), options(_options) {
        const std::string path = name.empty() ? "." : name;
        descriptor = OpenAt(AT_FDCWD, path, kFolderFlags);
        if (!descriptor.IsOpen() && errno == ENOENT) {
            MakeFolders(path, options.sync);
            descriptor = OpenAt(AT_FDCWD, path, kFolderFlags);
        }
        FailUnless(descriptor.IsOpen());
    }

    const std::string& Name() const { return name; }

    // Writes a file, or returns what the link of that name leads to.
    std::optional<std::string> Write(const std::string& leaf, std::string_view bytes) {
        // Behind a new file the next is mostly new, too, and the search for it would hinder other threads.
        if (newFiles == NewFiles::Expected && WriteNew(leaf, bytes)) {
            return std::nullopt;
        }
        Descriptor old = OpenAt(descriptor.Number(), leaf, O_RDONLY | O_NOFOLLOW | O_NONBLOCK | O_NOCTTY);
        FileStatus status = {};
        if (old.IsOpen()) {
            status = StatusOf(old);
        } else if (errno == ENOENT) {
            if (newFiles == NewFiles::Impossible || !WriteNew(leaf, bytes)) {
                Replace(leaf, bytes, nullptr);
            }
            return std::nullopt;
        } else {
            const int error = errno;
            if (fstatat(descriptor.Number(), leaf.c_str(), &status, AT_SYMLINK_NOFOLLOW) != 0) {
                Fail(error);
            }
        }
        if (S_ISLNK(status.st_mode) && !LeadsToDevice(leaf)) {
            return TargetOf(leaf);
        }
        if (S_ISREG(status.st_mode)) {
            WriteOver(leaf, bytes, old, status);
        } else {
            // A pipe must have no reader here that never reads.
            old = Descriptor();
            WriteDirectly(leaf, bytes);
        }
        return std::nullopt;
    }

    void Sync() const {
        if (options.sync && isChanged) {
            SyncFolder(descriptor.Number(), ".");
        }
    }

private:
    // Whether files can be written by WriteNew.
    enum class NewFiles { Impossible, Possible, Expected };

    void WriteDirectly(const std::string& leaf, std::string_view bytes) {
        const Descriptor device = OpenAt(descriptor.Number(), leaf, O_WRONLY | O_NOCTTY);
        FailUnless(device.IsOpen());
        WriteAll(device, bytes);
    }

    void WriteOver(const std::string& leaf, std::string_view bytes, const Descriptor& old, const FileStatus& status) {
        if (old.IsOpen() && Holds(old, status, bytes)) {
            FailUnless(!options.touch || futimens(old.Number(), nullptr) == 0);
            FailUnless(!options.sync || Uninterrupted([&] { return fsync(old.Number()); }) == 0);
        } else {
            FailUnless(faccessat(descriptor.Number(), leaf.c_str(), W_OK, AT_EACCESS) == 0);
            Replace(leaf, bytes, &status);
        }
    }

    // Writes a file that gets its name when it is whole. Threads that write to one folder hinder each other less by
    // that than by temporary files, and a process that is killed leaves nothing. False if there is a file of the name,
    // or if it cannot be done: then Replace finds the reason.
    bool WriteNew(const std::string& leaf, std::string_view bytes) {
        newFiles = NewFiles::Impossible;
#ifdef O_TMPFILE
        const Descriptor file = OpenAt(descriptor.Number(), ".", O_WRONLY | O_TMPFILE, kNewMode);
        if (!file.IsOpen()) {
            return false;
        }
        newFiles = NewFiles::Possible;
        try {
            WriteAll(file, bytes);
            Complete(file);
        } catch (const std::system_error&) {
            return false;
        }
        if (Link(file, leaf)) {
            newFiles = NewFiles::Expected;
            isChanged = true;
        } else if (errno != EEXIST) {
            newFiles = NewFiles::Impossible;
        }
#endif
        return newFiles == NewFiles::Expected;
    }

#ifdef O_TMPFILE
    bool Link(const Descriptor& file, const std::string& leaf) const {
        if (linkat(file.Number(), "", descriptor.Number(), leaf.c_str(), AT_EMPTY_PATH) == 0) {
            return true;
        }
        if (errno == EEXIST) {
            return false;
        }
        // Older systems let only the superuser give a name to a descriptor itself.
        const std::string path = "/proc/self/fd/" + std::to_string(file.Number());
        return linkat(AT_FDCWD, path.c_str(), descriptor.Number(), leaf.c_str(), AT_SYMLINK_FOLLOW) == 0;
    }
#endif

    void Replace(const std::string& leaf, std::string_view bytes, const FileStatus* old) {
        // Nobody else sees the content before the permissions of the old file are in force.
        TemporaryFile temporary(descriptor.Number(), leaf, old == nullptr ? kNewMode : 0600);
        WriteAll(temporary.File(), bytes);
        if (old != nullptr) {
            TakeOverPermissions(temporary.File(), temporary.Status(), *old);
        }
        Complete(temporary.File());
        temporary.Replace(leaf);
        isChanged = true;
    }

    // Ends the writing of a file that has no name of its own yet.
    void Complete(const Descriptor& file) const {
        FailUnless(!options.sync || Uninterrupted([&] { return fsync(file.Number()); }) == 0);
        CloseCopy(file);
    }

    bool LeadsToDevice(const std::string& leaf) const {
        FileStatus status = {};
        return fstatat(descriptor.Number(), leaf.c_str(), &status, 0) == 0 && !S_ISREG(status.st_mode);
    }

    std::string TargetOf(const std::string& leaf) const {
        char target[PATH_MAX];
        const ssize_t length = readlinkat(descriptor.Number(), leaf.c_str(), target, sizeof target);
        FailUnless(length > 0);
        return (fs::path(name) / std::string(target, static_cast<std::size_t>(length))).string();
    }

    const std::string name;
    const DestinationOptions& options;
    Descriptor descriptor;
    bool isChanged = false;
    NewFiles newFiles = NewFiles::Possible;
};

DestinationWriter::DestinationWriter(const DestinationOptions& _options) : options(_options) {}

DestinationWriter::~DestinationWriter() = default;

std::string DestinationWriter::Write(const std::string& name, std::string_view bytes) try {
    std::optional<std::string> next = name;
    for (int links = 0; next; ++links) {
        if (links > kMostLinks) {
            Fail(ELOOP);
        }
        const std::size_t slash = next->find_last_of('/');
        const std::size_t leaf = slash == std::string::npos ? 0 : slash + 1;
        const std::string folderName = next->substr(0, leaf);
        if (folder == nullptr || folder->Name() != folderName) {
            if (folder != nullptr) {
                folder->Sync();
            }
            folder.reset();
            folder = std::make_unique<Folder>(folderName, options);
        }
        next = folder->Write(next->substr(leaf), bytes);
    }
    return {};
} catch (const std::system_error& error) {
    return error.code().message();
}

std::string DestinationWriter::Finish() try {
    if (folder != nullptr) {
        folder->Sync();
    }
    return {};
} catch (const std::system_error& error) {
    return error.code().message();
}

} // namespace Vorn
