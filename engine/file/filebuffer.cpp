#include "engine/file/filebuffer.h"

#include <algorithm>

namespace Vorn {

void ReadBuffer::Open(ByteStream& _file) {
    file = &_file;
    block = std::make_unique_for_overwrite<unsigned char[]>(kFileBlock + kSlack);
    block[0] = 0;
    cursor = end = block.get();
    ended = false;
}

bool ReadBuffer::Fill(std::size_t count) {
    if (ended) {
        return false;
    }
    const std::size_t kept = Available();
    std::memmove(block.get(), cursor, kept);
    cursor = block.get();
    std::size_t filled = kept;
    while (filled < count && !ended) {
        const std::ptrdiff_t result = file->Read(block.get() + filled, std::min(nextRead, kFileBlock - filled));
        nextRead = kFileBlock;
        failed = result < 0;
        ended = result <= 0;
        filled += result > 0 ? static_cast<std::size_t>(result) : 0;
    }
    given += filled - kept;
    end = block.get() + filled;
    std::memset(block.get() + filled, 0, kSlack);
    return filled >= count;
}

std::size_t ReadBuffer::Take(void* bytes, std::size_t count) {
    std::size_t taken = 0;
    while (taken < count && Ensure(1)) {
        const std::size_t part = std::min(count - taken, Available());
        std::memcpy(static_cast<unsigned char*>(bytes) + taken, cursor, part);
        cursor += part;
        taken += part;
    }
    return taken;
}

void WriteBuffer::Open(ByteStream& _file) {
    file = &_file;
    block = std::make_unique_for_overwrite<char[]>(kFileBlock);
    cursor = block.get();
    end = cursor + kFileBlock;
}

bool WriteBuffer::Flush() {
    const auto count = static_cast<std::size_t>(cursor - block.get());
    cursor = block.get();
    return !IsOpen() || file->Write(block.get(), count);
}

bool WriteBuffer::PutLarge(const void* bytes, std::size_t count) {
    if (!IsOpen()) {
        return false;
    }
    bool written = count <= Room() || Flush();
    const auto* part = static_cast<const char*>(bytes);
    for (; count > kFileBlock; part += kFileBlock, count -= kFileBlock) {
        written = file->Write(part, kFileBlock) && written;
    }
    std::memcpy(cursor, part, count);
    cursor += count;
    return written;
}

} // namespace Vorn
