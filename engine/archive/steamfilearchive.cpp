#include "engine/archive/steamfilearchive.h"

#include "engine/archive/bytefilearchive_impl.h"

namespace Vorn {

template class ByteFileArchive<StorageBytes>;

int StorageBytes::Take(void* elements, int elementSize, int count) {
    const auto size = static_cast<std::size_t>(elementSize);
    const std::size_t left = RemoteStorage::kAreaSize - storage->GetPlace();
    const std::size_t taken = std::min(static_cast<std::size_t>(count), left / size);
    std::memcpy(elements, storage->GetArea() + storage->GetPlace(), taken * size);
    storage->MovePlace(taken * size);
    return static_cast<int>(taken);
}

void StorageBytes::Put(const void* elements, int elementSize, int count) {
    const std::size_t bytes = static_cast<std::size_t>(elementSize) * static_cast<std::size_t>(count);
    const bool fits = bytes <= RemoteStorage::kAreaSize - storage->GetPlace();
    CheckAssert(fits, "false");
    if (fits) {
        std::memcpy(storage->GetArea() + storage->GetPlace(), elements, bytes);
        storage->MovePlace(bytes);
    }
}

void StorageBytes::ReportShort(int, int) {
    CheckAssert(false, "false");
}

SteamFileArchive::SteamFileArchive(RemoteStorage& storage, bool _hasFloatBits)
    : ByteFileArchive(nullptr, _hasFloatBits, StorageBytes{&storage}) {
    std::memset(storage.GetArea(), 0, RemoteStorage::kAreaSize);
    storage.Rewind();
}

} // namespace Vorn
