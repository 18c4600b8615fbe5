#include "engine/archive/further/steamfilearchive.h"

#include "engine/archive/bytefilearchive_impl.h"

namespace Vorn {

FileArchive* RemoteStorage::Make(bool hasFloatBits) {
    return new SteamFileArchive(*this, hasFloatBits);
}

std::size_t StorageBytes::Left(int elementSize) const {
    return (RemoteStorage::kAreaSize - std::min(storage->GetPlace(), RemoteStorage::kAreaSize)) /
           static_cast<std::size_t>(elementSize);
}

int StorageBytes::Take(void* elements, int elementSize, int count) {
    const std::size_t taken = std::min(static_cast<std::size_t>(count), Left(elementSize));
    const std::size_t bytes = taken * static_cast<std::size_t>(elementSize);
    std::memcpy(elements, storage->GetArea() + storage->GetPlace(), bytes);
    storage->MovePlace(bytes);
    return static_cast<int>(taken);
}

void StorageBytes::Put(const void* elements, int elementSize, int count) {
    const auto wanted = static_cast<std::size_t>(count);
    const std::size_t put = std::min(wanted, Left(elementSize));
    if (elementSize == sizeof(char16_t) && put < wanted) {
        return CheckAssert(false, "false");
    }
    const std::size_t bytes = put * static_cast<std::size_t>(elementSize);
    std::memcpy(storage->GetArea() + storage->GetPlace(), elements, bytes);
    storage->MovePlace(bytes);
    for (std::size_t i = put; i < wanted; ++i) {
        CheckAssert(false, "false");
    }
}

void StorageBytes::ReportShort(int, int) {
    CheckAssert(false, "false");
}

SteamFileArchive::SteamFileArchive(RemoteStorage& _storage, bool _hasFloatBits)
    : ByteFileArchive(nullptr, _hasFloatBits, StorageBytes{&_storage}), storage(_storage) {
    std::memset(storage.GetArea(), 0, RemoteStorage::kAreaSize);
    storage.Rewind();
}

// A complete text is read as in other files. Of an incomplete one only the count is read.
void SteamFileArchive::Read(Label label, char16_t* buffer, int bufferSize) {
    const StorageBytes area{&storage};
    std::uint32_t count = 0;
    if (area.Left(sizeof count) > 0) {
        std::memcpy(&count, storage.GetArea() + storage.GetPlace(), sizeof count);
    }
    const auto numChars = static_cast<std::int32_t>(LittleEndian(count));
    constexpr auto kUnitsOfCount = sizeof count / sizeof(char16_t);
    if (numChars <= 0 || static_cast<std::size_t>(numChars) + kUnitsOfCount <= area.Left(sizeof(char16_t))) {
        return ByteFileArchive::Read(label, buffer, bufferSize);
    }
    storage.MovePlace(sizeof count);
    CheckAssert(numChars < bufferSize, "numChars < bufferSize");
    CheckAssert(false, "false");
    CountIdleRead();
    checkSum += StringCheckSum(TextIn(buffer, bufferSize));
}

} // namespace Vorn
