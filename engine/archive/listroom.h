#pragma once

#include "engine/archive/archive.h"

namespace Vorn {

// The room of a list that is made at once for its count, while the list is read. It is counted by the size of an
// element in a binary file. More than 64 MiB and more than 64 times the source counts as a failed allocation and ends
// the process abnormally: a damaged count must not cost what no source is worth. Lists inside a list count together
// with it.
class ListRoom {
public:
    // Lists of so few elements are not worth measuring.
    static constexpr std::int32_t kShort = 4096;

    ListRoom(Archive& _archive, std::int32_t count, std::uint64_t elementSize);
    ListRoom(const ListRoom&) = delete;
    ListRoom& operator=(const ListRoom&) = delete;
    ~ListRoom();

    // As much of the count as the source can hold.
    std::int32_t GetLikelyCount() const { return likelyCount; }

    // Whether a list inside another one comes next.
    static bool IsInside(const Archive& archive) { return archive.roomsOfLists != 0; }

private:
    Archive& archive;
    const bool isOutermost = !IsInside(archive);
    std::int32_t likelyCount;
};

} // namespace Vorn
