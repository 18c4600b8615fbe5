#pragma once

#include "engine/archive/archive.h"

namespace Vorn {

// Accounts for the memory of a list that is allocated at once for its count, while the list is read. An element counts
// with its size in a binary file. More than 64 MiB that is also more than 64 times the size of the source counts as a
// failed allocation and ends the process abnormally: a small file with a damaged count must not use all memory. Lists
// inside a list are added to it.
class ListRoom {
public:
    // Lists of so few elements need not be measured.
    static constexpr std::int32_t kShort = 4096;

    ListRoom(Archive& _archive, std::int32_t count, std::uint64_t elementSize);
    ListRoom(const ListRoom&) = delete;
    ListRoom& operator=(const ListRoom&) = delete;
    ~ListRoom();

    // The count, or as many elements as the source can hold if those are fewer.
    std::int32_t GetLikelyCount() const { return likelyCount; }

    // Whether a list is being read already, so that the next one is inside it.
    static bool IsInside(const Archive& archive) { return archive.roomsOfLists != 0; }

private:
    Archive& archive;
    const bool isOutermost = !IsInside(archive);
    std::int32_t likelyCount;
};

} // namespace Vorn
