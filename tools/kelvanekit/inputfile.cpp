#include "tools/kelvanekit/inputfile.h"

#include "tools/kelvanekit/filename.h"

#include <algorithm>
#include <cerrno>
#include <cstring>
#include <fcntl.h>
#include <sys/stat.h>
#include <system_error>

#ifdef _WIN32
#include <io.h>
#else
#include <unistd.h>
#endif

namespace Vorn {

namespace {

constexpr std::size_t kLeastCapacity = 65536;
constexpr std::size_t kMaxTransfer = std::size_t{1} << 30;
constexpr int kStandardInput = 0;

#ifdef _WIN32

using FileStatus = struct _stat64;

int OpenForRead(const std::string& name) {
    return _wopen(PathOf(name).c_str(), _O_RDONLY | _O_BINARY | _O_NOINHERIT);
}
int StatusOf(int descriptor, FileStatus& status) {
    return _fstat64(descriptor, &status);
}
std::ptrdiff_t ReadSome(int descriptor, char* bytes, std::size_t count) {
    return _read(descriptor, bytes, static_cast<unsigned>(count));
}
void CloseDescriptor(int descriptor) {
    _close(descriptor);
}

#else

using FileStatus = struct stat;

int OpenForRead(const std::string& name) {
    return open(name.c_str(), O_RDONLY | O_CLOEXEC);
}
int StatusOf(int descriptor, FileStatus& status) {
    return fstat(descriptor, &status);
}
std::ptrdiff_t ReadSome(int descriptor, char* bytes, std::size_t count) {
    return read(descriptor, bytes, count);
}
void CloseDescriptor(int descriptor) {
    close(descriptor);
}

#endif

std::string LastError() {
    return std::generic_category().message(errno);
}

} // namespace

std::string InputFile::Read(const std::string& name) {
    size = 0;
    const int descriptor = OpenForRead(name);
    if (descriptor < 0) {
        return LastError();
    }
    struct Closing {
        ~Closing() { CloseDescriptor(descriptor); }
        int descriptor;
    };
    const Closing closing{descriptor};
    return ReadAll(descriptor);
}

std::string InputFile::ReadStandardInput() {
    size = 0;
#ifdef _WIN32
    _setmode(kStandardInput, _O_BINARY);
#endif
    return ReadAll(kStandardInput);
}

// A regular file comes in one piece, and in less than was asked for unless it grew meanwhile.
std::string InputFile::ReadAll(int descriptor) {
    FileStatus status = {};
    std::size_t expected = 0;
    if (StatusOf(descriptor, status) == 0 && status.st_size > 0) {
        expected = static_cast<std::size_t>(status.st_size);
        Grow(expected + 1);
    }
    for (;;) {
        if (size == capacity) {
            Grow(capacity + 1);
        }
        const std::ptrdiff_t count = ReadSome(descriptor, buffer.get() + size, std::min(capacity - size, kMaxTransfer));
        if (count == 0) {
            return {};
        }
        if (count > 0) {
            size += static_cast<std::size_t>(count);
            if (size == expected) {
                return {};
            }
        } else if (errno != EINTR) {
            size = 0;
            return LastError();
        }
    }
}

void InputFile::Grow(std::size_t least) {
    if (least <= capacity) {
        return;
    }
    const std::size_t enough = std::max({least, 2 * capacity, kLeastCapacity});
    auto larger = std::make_unique_for_overwrite<char[]>(enough);
    if (size > 0) {
        std::memcpy(larger.get(), buffer.get(), size);
    }
    buffer = std::move(larger);
    capacity = enough;
}

} // namespace Vorn
